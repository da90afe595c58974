#pragma once

#include "preview/PreviewDocuments.h"
#include "text/Text.h"

#include <QDialog>

class QPushButton;

namespace tintora {

class PathList;
class PreviewFileQuestions;

/// The list of preview documents. It is made anew for each use, and shows what is stored then. Files can be dropped on
/// it.
///
///     if (dlgPreviewDocuments(documents, questions, window).ManagePreviewDocuments())
///         ...    // the choosers of documents are filled anew
///
/// Where there is no other, the default document stands in the list, and can't be removed. It is never stored. Only OK
/// stores anything.
class dlgPreviewDocuments : public QDialog {
    Q_OBJECT

  public:
    /// `documents` and `questions` must outlive the dialog.
    dlgPreviewDocuments(PreviewDocuments& documents, PreviewFileQuestions& questions, QWidget* parent = nullptr);

    /// Shows the dialog until it is closed; whether by OK.
    bool ManagePreviewDocuments();

    /// Asks for documents and adds them to the list. One that is in it already is selected there.
    void AddOneDocument();

    /// Removes what is selected in the list.
    void RemoveOneDocument();

    /// Enables "Remove Document" where there is something to remove.
    void UpdateControls();

    /// OK: stores the list. Where the document in use was taken from it, the default one is in use afterwards.
    void accept() override;

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void SetUpList();
    void SetUpControls();
    void AddDocument(TextView path);

    PreviewDocuments& documents_;
    PreviewFileQuestions& questions_;
    PathList* list_;
    QPushButton* add_;
    QPushButton* remove_;
};

}  // namespace tintora
