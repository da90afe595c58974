#pragma once

#include "linking/TextWriting.h"
#include "preview/FilesToDelete.h"
#include "preview/LastPreviewFiles.h"
#include "preview/PreviewDocuments.h"
#include "preview/PreviewedDocument.h"
#include "preview/TemporaryFiles.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

namespace tintora {

/// Makes the files of a preview: a style sheet with the text of the editor, and a copy of the preview document that is
/// linked to it. The user's own files are only read.
///
///     PreviewMaking making(store, folders, clock);
///     const Text page = making.MakePreview(document);     // "/site/ktTemp 61234.561237.html"
///
/// A path that an operation gives is that of a page that exists; "" says that there is no preview, because the preview
/// document can't be read, can't be copied or has its head end beyond the limit of positions, or because there is no
/// place for the style sheet. Nobody is told, and nothing is left behind. The settings name each file before it is
/// made.
class PreviewMaking {
  public:
    /// `store` must outlive the object.
    PreviewMaking(SettingsStore& store, const PreviewFolders& folders, const ReadTime& now);
    PreviewMaking(const PreviewMaking&) = delete;
    PreviewMaking& operator=(const PreviewMaking&) = delete;

    /// For a pane. The files of the preview before are put on the list of files to delete: the pane may still read
    /// them.
    [[nodiscard]] Text MakePreview(const PreviewedDocument& document);

    /// For a browser. The files of the preview before are deleted, or put on the list if somebody may still read them.
    /// A style sheet that can't be written is told to `messages`, if there are any.
    [[nodiscard]] Text MakeBrowserPreview(const PreviewedDocument& document, WriteMessages* messages);

    /// For the pane of the current rule. The page before is deleted, or put on the list if it may still be read.
    [[nodiscard]] Text MakeRulePreview(const PreviewedDocument& document);

    [[nodiscard]] FilesToDelete& ToDelete() noexcept { return filesToDelete_; }
    [[nodiscard]] LastPreviewFiles& Last() noexcept { return last_; }
    [[nodiscard]] PreviewDocuments& Documents() noexcept { return documents_; }

  private:
    [[nodiscard]] Text MakePair(const PreviewedDocument& document, WriteMessages* messages);
    [[nodiscard]] Text MakeSheet(const PreviewedDocument& document, bool isMarked, WriteMessages* messages);
    [[nodiscard]] Text MakePreviewPage(TextView file, std::string_view bytes, TextView sheetPath,
                                       TextView documentPath);

    TemporaryFiles files_;
    FilesToDelete filesToDelete_;
    LastPreviewFiles last_;
    PreviewDocuments documents_;
};

}  // namespace tintora
