#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

namespace tintora {

/// The pages on which the user sees a style sheet, as the settings keep them.
///
///     PreviewDocuments documents(store, u"/opt/tintora");
///     documents.GetPreviewFile();                        // "/opt/tintora/Help_Files/Preview/default.html"
///     documents.ChooseDocument(u"/site/index.html");
///     documents.GetPreviewFile();                        // "/site/index.html", as long as that file exists
///
/// The default document stands for itself where no other is known: it is never stored in the list. Nothing is cached,
/// and paths are equal only as exact texts.
class PreviewDocuments {
  public:
    /// `applicationFolder` is the folder that holds "Help_Files", without a separator at its end. `store` must outlive
    /// the object.
    PreviewDocuments(SettingsStore& store, TextView applicationFolder);

    [[nodiscard]] const Text& GetDefaultPreviewFile() const noexcept { return defaultFile_; }

    /// The document in use: the one that was set if a file of that name exists, otherwise the default one, whether that
    /// exists or not.
    [[nodiscard]] Text GetPreviewFile() const;
    void SetPreviewFile(TextView path);

    /// The documents that the user knows, in their order, whether they exist or not; the default document alone where
    /// there is none.
    [[nodiscard]] Texts GetAllPreviewFiles() const;

    /// Stores the list, without the default document and without "".
    void SaveAllPreviewFiles(const Texts& paths);

    /// Adds a document at the end of the list, unless it is in it already. The default document and "" add nothing.
    void AddPreviewFile(TextView path);

    /// Takes the first entry of that path from the list, and makes the default document the one in use.
    void RemovePreviewFile(TextView path);

    /// Adds a document and makes it the one in use; "", from a question that was cancelled, does nothing.
    void ChooseDocument(TextView path);

    /// The same for files that were dropped, one after the other: the last is the one in use afterwards.
    void DropDocuments(const Texts& paths);

    /// Where the document in use stands in `GetAllPreviewFiles`, 0-based; -1 if it isn't in it.
    [[nodiscard]] int IndexOfPreviewFile() const;

  private:
    [[nodiscard]] Texts Stored() const;

    SettingsStore& store_;
    Text defaultFile_;
};

}  // namespace tintora
