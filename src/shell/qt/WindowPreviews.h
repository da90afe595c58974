#pragma once

#include "editor/qt/QtClock.h"
#include "preview/BrowserLocations.h"
#include "preview/BrowserMenu.h"
#include "preview/BrowserPreviews.h"
#include "preview/LivePreviewSwitch.h"
#include "preview/PreviewController.h"
#include "preview/qt/PreviewFileQuestions.h"

#include <QObject>
#include <QPointer>
#include <functional>
#include <vector>

class QMenu;
class QUrl;
class QWidget;

namespace tintora {

class DocumentPreviews;
class frmPreview;
class fwRulePreview;

/// The previews of the main window: its two panes, the browsers, and what stands in its menus about them.
class WindowPreviews : public QObject {
    Q_OBJECT

  public:
    /// All of it must outlive the object.
    struct Surroundings {
        SettingsStore& store;
        BrowserLocations& locations;
        AskFiles askFiles;
        ProcessStarter& processes;
        WriteMessages& messages;
        PreviewFolders folders;
        /// The previews of the style sheet in front, `nullptr` if there is none.
        std::function<const DocumentPreviews*()> active;
        /// Shows the pane, and previews the style sheet in front.
        std::function<void()> previewNow;
        /// Ticks or clears the menu item of the live preview.
        std::function<void(bool)> showLivePreview;
        std::function<void(const QUrl&)> openLink;
    };

    WindowPreviews(Surroundings surroundings, QWidget& window);
    /// The panes go first, whoever owns them. No file of a preview is left, also where the window was never closed.
    ~WindowPreviews() override;

    [[nodiscard]] PreviewController& Controller() noexcept { return previews_; }

    /// The forms of the panes "dwPreview" and "dwPreviewRule".
    [[nodiscard]] frmPreview& Form();
    [[nodiscard]] fwRulePreview& RuleForm();

    /// Deletes what an earlier run of the program has left, and shows whether live preview is on.
    void Start();

    /// The window is closing: no file of a preview is left.
    void Close() { previews_.Close(); }

    /// Whether there is a style sheet in front.
    void EnablePreviews(bool isEnabled);

    [[nodiscard]] bool IsLivePreviewOn() const { return livePreview_.IsOn(); }
    void SetLivePreview(bool isOn) { livePreview_.SetLivePreview(isOn); }

    /// Asks for a preview document, and previews on it.
    void LocateDocument();

    // In browsers. Without a style sheet in front nothing happens.
    void PreviewInNamed(NamedBrowser browser);
    void PreviewIn1();

    void ManagePreviewDocuments();
    void ManagePreviewBrowsers();

    /// Brings the entries for browsers in a menu of the main window up to date: the captions of those that are there,
    /// and the further browsers behind them.
    void UpdateBrowserMenu(QMenu& menu);

  private:
    void Connect();
    [[nodiscard]] std::vector<BrowserMenuEntry> BrowserEntries() const;
    void PreviewInKey(const QString& key);
    void AddFurtherBrowsers(QMenu& menu, const std::vector<BrowserMenuEntry>& entries);

    Surroundings surroundings_;
    QWidget& window_;
    PreviewFileQuestions questions_;
    QtClock clock_;
    PreviewController previews_;
    BrowserPreviews browsers_;
    QPointer<frmPreview> form_;
    QPointer<fwRulePreview> ruleForm_;
    LivePreviewSwitch livePreview_;
};

}  // namespace tintora
