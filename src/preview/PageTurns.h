#pragma once

#include "editor/Clock.h"
#include "preview/FilesToDelete.h"
#include "preview/PreviewPane.h"
#include "preview/PreviewedDocument.h"
#include "text/Text.h"

#include <functional>
#include <memory>

namespace tintora {

/// Turns one pane from page to page, so that each preview takes the place of the one before.
///
///     turns.SetPane(&pane);
///     turns.Preview(document);            // makes the files; the pane begins to load
///     turns.Preview(document);            // waits for that
///     turns.Preview(document);            // is one with it
///     turns.PageLoaded(url);              // the pane shows the first page; the newest text is made into a page now
///
/// A pane that isn't visible loads nothing: the files are made all the same, and it loads the newest page when it comes
/// into view. The files of a page that is being loaded are held; when a newer one has loaded, and whenever nothing is
/// being loaded, the list of files to delete is purged.
///
/// A preview waits no longer than `Patience` for the page before it: a page may take for ever.
class PageTurns {
  public:
    static constexpr std::chrono::milliseconds Patience{2000};

    struct Surroundings {
        FilesToDelete& filesToDelete;
        Clock& clock;
        /// Makes the files of a preview; the path of its page, "" if there is none.
        std::function<Text(const PreviewedDocument&)> make;
        /// The files of the newest preview, its page first; an entry is "" where there is none.
        std::function<Texts()> newest;
    };

    explicit PageTurns(Surroundings surroundings);
    ~PageTurns();
    PageTurns(const PageTurns&) = delete;
    PageTurns& operator=(const PageTurns&) = delete;

    /// The pane, as long as it exists; nullptr for none. A pane that comes into its place loads the newest page.
    void SetPane(PreviewPane* pane);

    /// Makes a preview of the document and shows it, or remembers to. `document` must outlive the object, or be
    /// forgotten.
    void Preview(const PreviewedDocument& document);

    /// The document goes; what was still to be made of it isn't made.
    void Forget(const PreviewedDocument& document);

    /// The pane tells that the page of a URL is shown, or never will be. A page that was given up for another doesn't
    /// count.
    void PageLoaded(TextView url);

    /// The pane tells that it has come into view. A page that it has loaded isn't loaded again.
    void PaneShown();

  private:
    void Make(const PreviewedDocument& document);
    void MakeWaiting();
    void LoadNewest();
    void ForgetLoading();
    /// Whether a page is being loaded that is still worth waiting for.
    [[nodiscard]] bool IsPaneBusy() const { return !loading_.empty() && patience_->IsRunning(); }

    Surroundings surroundings_;
    PreviewPane* pane_ = nullptr;
    std::unique_ptr<DelayTimer> patience_;
    const PreviewedDocument* waiting_ = nullptr;
    /// The page that is being loaded, "" for none, and its files.
    Text loading_;
    Texts held_;
    /// The page that the pane has loaded last.
    Text loaded_;
};

}  // namespace tintora
