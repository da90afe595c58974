#pragma once

#include "preview/BrowserMenu.h"
#include "preview/PageTurns.h"
#include "preview/PreviewDocuments.h"
#include "preview/qt/PageViewPane.h"

#include <QWidget>
#include <vector>

class QAction;
class QCheckBox;
class QComboBox;
class QMenu;
class QToolBar;

namespace tintora {

/// The pane that shows the style sheet in front on a preview document, and with which the user chooses the document,
/// previews in browsers, and turns the live preview on and off.
///
///     auto* const form = new frmPreview(previews.Page(), previews.Documents());
///     connect(form, &frmPreview::PreviewNowWanted, this, [this] { PreviewNow(); });
///     form->SetUpPreviewFiles();          // whenever the list of documents has changed
class frmPreview : public QWidget {
    Q_OBJECT

  public:
    /// Both must outlive the form.
    frmPreview(PageTurns& turns, PreviewDocuments& documents, QWidget* parent = nullptr);

    /// Whether the pane that holds the form is in view. Until it is, and while it is not, nothing is loaded.
    void SetInView(bool isInView);

    /// Fills the list of documents, and selects the one in use.
    void SetUpPreviewFiles();

    /// Ticks or clears the box; nobody is told.
    void SetUpLivePreview(bool isOn);

    /// The entries of the menu of browsers.
    void SetupPreviewBrowsers(const std::vector<BrowserMenuEntry>& entries);

    /// Whether there is a style sheet to preview.
    void EnablePreviews(bool isEnabled);

    /// Does nothing: callers expect it.
    void StartDesignMode() {}

    /// The browser.
    [[nodiscard]] PageView& PreviewField() noexcept { return *browser_; }

    [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

  Q_SIGNALS:
    /// The user has ticked or cleared the box.
    void LivePreviewClicked(bool isTicked);
    /// A preview is to be made, since the user asks for one or has changed the document in use.
    void PreviewNowWanted();
    /// The user wants to add a document.
    void LocateFileWanted();
    /// The menu of browsers is about to be shown, and its entries should be brought up to date.
    void BrowsersWanted();
    /// The user wants a preview in the browser with that key of `BrowserMenuEntry`.
    void BrowserChosen(const QString& key);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void SetUpToolbar();
    QAction* AddTool(const QString& key, const QString& text, const QString& toolTip, const QString& iconName);
    void Lay();
    void ChooseDocument(int index);
    void ClearCurrent();
    void DropDocuments(const QStringList& paths);

    PreviewDocuments& documents_;
    PageView* browser_;
    PageViewPane pane_;
    QComboBox* chooser_;
    QToolBar* toolbar_;
    QMenu* browserMenu_;
    QCheckBox* livePreview_;
};

}  // namespace tintora
