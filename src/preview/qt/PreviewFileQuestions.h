#pragma once

#include "preview/BrowserSurroundings.h"
#include "preview/qt/FilesWanted.h"
#include "text/Text.h"

namespace tintora {

/// The toolkit's filters for preview documents.
inline constexpr TextView PreviewDocumentFilters = u"HTML Files (*.htm *.html);;text (*.txt);;All Files (*)";

/// Asks for browsers and for preview documents, each in the folder where one was found last. Browsers are looked for in
/// "/usr/bin" before that.
///
///     PreviewFileQuestions questions(window);
///     questions.LocateFile(ProgramFilter);             // a browser, over the window
///     questions.LocateFile(PreviewDocumentFilters);    // a preview document
///     questions.LocateDocuments(dialog);               // several, over a dialogue
class PreviewFileQuestions final : public FileQuestion {
  public:
    /// `window` must outlive the object.
    explicit PreviewFileQuestions(QWidget& window, AskFiles ask = AskFilesByDialog)
        : window_(window), ask_(std::move(ask)) {}

    /// Asks for a browser where the filter is `ProgramFilter`, otherwise for a document by filters as the toolkit has
    /// them.
    [[nodiscard]] Text LocateFile(TextView filter) override;

    /// The path of a program that may be run; "" if the question is cancelled.
    [[nodiscard]] Text LocateBrowser(QWidget* parent);

    /// The paths of any number of documents; none if the question is cancelled.
    [[nodiscard]] Texts LocateDocuments(QWidget* parent);

  private:
    [[nodiscard]] Texts Ask(FilesWanted wanted, QString& folder, QWidget* parent);

    QWidget& window_;
    AskFiles ask_;
    QString browserFolder_ = QStringLiteral("/usr/bin");
    /// "" before the first document.
    QString documentFolder_;
};

}  // namespace tintora
