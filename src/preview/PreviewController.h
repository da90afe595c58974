#pragma once

#include "editor/Clock.h"
#include "preview/PageTurns.h"
#include "preview/PreviewMaking.h"
#include "preview/PreviewedDocument.h"
#include "preview/TemporaryFiles.h"
#include "settings/SettingsStore.h"

namespace tintora {

/// The previews of the program: the pane with the preview document, the pane with the current rule, and the files of
/// both.
///
///     PreviewController previews(store, clock, {applicationFolder, temporaryFolder}, now);
///     previews.Start();                              // what a crash has left goes
///     previews.Page().SetPane(&pane);
///     previews.PreviewNow(document);                 // the pane begins to load
///     previews.Page().PageLoaded(url);               // the pane says that it shows it
///     ...
///     previews.Close();                              // no file is left, unless somebody holds it
class PreviewController {
  public:
    /// `store` and `clock` must outlive the object.
    PreviewController(SettingsStore& store, Clock& clock, const PreviewFolders& folders, const ReadTime& now);

    /// Deletes the files that an earlier run of the program has left, as far as the settings name them.
    void Start() { making_.Last().DeleteAll(); }

    /// Shows the document's text on the preview document, whether live preview is on or not.
    void PreviewNow(const PreviewedDocument& document);

    /// Shows the declarations of the document's current statement on a paragraph.
    void PreviewCurrentRule(const PreviewedDocument& document);

    /// The document goes.
    void Forget(const PreviewedDocument& document);

    /// The panes go, and the files with them. From now on nothing is previewed, though the timers of a document may
    /// still ask for it.
    void Close();

    /// The pane "dwPreview", and the pane "dwPreviewRule".
    [[nodiscard]] PageTurns& Page() noexcept { return page_; }
    [[nodiscard]] PageTurns& Rule() noexcept { return rule_; }

    [[nodiscard]] PreviewMaking& Making() noexcept { return making_; }
    [[nodiscard]] PreviewDocuments& Documents() noexcept { return making_.Documents(); }

  private:
    PreviewMaking making_;
    PageTurns page_;
    PageTurns rule_;
    bool isClosed_ = false;
};

}  // namespace tintora
