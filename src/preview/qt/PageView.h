#pragma once

#include "preview/qt/PageFace.h"

#include <QWidget>
#include <array>
#include <memory>

namespace tintora {

class PageNotice;

/// The browser of a preview pane. It shows local pages, one after the other, and each refresh is one change of picture:
/// the new page loads out of sight and is swapped in when it has been painted, at the place where the old one stood.
///
/// Usage:
///     auto* const view = new PageView(pane);
///     connect(view, &PageView::PageShown, this, [this](const QString& path) { DeleteOlderThan(path); });
///     connect(view, &PageView::LinkActivated, this, &QDesktopServices::openUrl);
///     view->ShowPage(path);        // as often as you like
///
/// The engine comes up when the control has a page and has been painted for the first time; until then there is none.
/// While the control can't be seen it loads nothing. It never takes the keyboard focus, opens nothing, goes nowhere and
/// asks nothing. What is wrong with a page is said in a line over its lower edge.
class PageView : public QWidget {
    Q_OBJECT

  public:
    explicit PageView(QWidget* parent = nullptr, PagePatience patience = {});
    ~PageView() override;

    /// Shows the local file `path`. Of several calls in a row the last wins, and those in between are never seen. While
    /// the control is hidden, the page is remembered and shown when the control comes into view; the file must stay
    /// until then. A page that can't be shown leaves what is seen.
    void ShowPage(const QString& path);

    /// Gives up the page that is being loaded or waits to be, if there is one; nothing is told of it. What is seen
    /// stays.
    void Stop();

    /// Puts what is selected in the page on the clipboard.
    void Copy();

    /// The face that is seen, for tests; null before the engine is up.
    [[nodiscard]] PageFace* SeenFace() const { return faces_[seen_].get(); }

    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    /// What was asked for is done with: the page has been swapped in, or it can't be shown. The files of pages that
    /// were asked for earlier are needed no more. A page that gave way to a later one raises nothing.
    void PageShown(const QString& path);

    /// The user has chosen a link to another document, which isn't followed here.
    void LinkActivated(const QUrl& address);

    /// The control has come into view.
    void CameIntoView();

    /// Local files were dropped on the control, in this order.
    void FilesDropped(const QStringList& paths);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    [[nodiscard]] PageFace& Hidden() const { return *faces_[1 - seen_]; }
    void LoadWanted();
    void BringUp();
    void Connect(PageFace& face);
    void Swap();
    void EndLoad();
    void NoteEnd();
    void TellWhatIsWrong();
    void StopStuck();
    void Reload();

    const PagePatience patience_;
    std::shared_ptr<QWebEngineProfile> profile_;
    std::array<std::unique_ptr<PageFace>, 2> faces_;
    std::size_t seen_ = 0;
    PageNotice* notice_;
    QTimer asking_;
    /// What is to be loaded when the control can be seen, and what was asked for last.
    QString wanted_;
    QString last_;
    bool hasPainted_ = false;
    /// Whether a page's process has ended since the last page was swapped in.
    bool hasEnded_ = false;
};

}  // namespace tintora
