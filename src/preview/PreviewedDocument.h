#pragma once

#include "text/Encoding.h"
#include "text/Text.h"

namespace tintora {

/// A style sheet, as its previews see it.
class PreviewedDocument {
  public:
    PreviewedDocument() = default;
    PreviewedDocument(const PreviewedDocument&) = delete;
    PreviewedDocument& operator=(const PreviewedDocument&) = delete;
    virtual ~PreviewedDocument() = default;

    /// The path of the document; "" for one that was never saved.
    [[nodiscard]] virtual Text GetFile() const = 0;

    /// The text in the editor, saved or not.
    [[nodiscard]] virtual Text GetText() const = 0;

    /// The encoding of the document's file.
    [[nodiscard]] virtual Encoding FileEncoding() const = 0;

    /// The declarations of the statement at the caret.
    [[nodiscard]] virtual Texts GetCurrentStatementProperties() const = 0;
};

}  // namespace tintora
