#include "preview/qt/dlgPreviewDocuments.h"

#include "language/Words.h"
#include "linking/TextFiles.h"
#include "preview/qt/PathList.h"
#include "preview/qt/PreviewFileQuestions.h"
#include "text/qt/QtText.h"

#include <QDialogButtonBox>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;

}  // namespace

dlgPreviewDocuments::dlgPreviewDocuments(PreviewDocuments& documents, PreviewFileQuestions& questions, QWidget* parent)
    : QDialog(parent),
      documents_(documents),
      questions_(questions),
      list_(new PathList(PathList::Columns::Paths, this)),
      add_(new QPushButton(QStringLiteral("&Add Document"), this)),
      remove_(new QPushButton(QStringLiteral("&Remove Document"), this)) {
    setObjectName(QStringLiteral("dlgPreviewDocuments"));
    setWindowTitle(QStringLiteral("Manage Preview Documents"));
    setAcceptDrops(true);
    add_->setObjectName(QStringLiteral("Add"));
    remove_->setObjectName(QStringLiteral("Remove"));
    SetUpList();
    SetUpControls();
    UpdateControls();
}

void dlgPreviewDocuments::SetUpList() {
    list_->setObjectName(QStringLiteral("PreviewDocuments"));
    list_->setAccessibleName(QStringLiteral("Preview documents"));
    for (const Text& path : documents_.GetAllPreviewFiles()) {
        if (path != documents_.GetDefaultPreviewFile())
            list_->AddPath(path);
    }
    list_->ShowWhereEmpty(QStringLiteral("Default document"), documents_.GetDefaultPreviewFile());
    connect(list_, &PathList::itemSelectionChanged, this, &dlgPreviewDocuments::UpdateControls);
    connect(list_, &PathList::RemovalAsked, this, &dlgPreviewDocuments::RemoveOneDocument);
    connect(add_, &QPushButton::clicked, this, &dlgPreviewDocuments::AddOneDocument);
    connect(remove_, &QPushButton::clicked, this, &dlgPreviewDocuments::RemoveOneDocument);
}

void dlgPreviewDocuments::SetUpControls() {
    auto* const listButtons = new QVBoxLayout;
    listButtons->setSpacing(Gap);
    listButtons->addWidget(add_);
    listButtons->addWidget(remove_);
    listButtons->addStretch();
    auto* const listRow = new QHBoxLayout;
    listRow->setSpacing(Gap);
    listRow->addWidget(list_, 1);
    listRow->addLayout(listButtons);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &dlgPreviewDocuments::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &dlgPreviewDocuments::reject);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(Gap, Gap, Gap, Gap);
    rows->setSpacing(GroupGap);
    rows->addLayout(listRow, 1);
    rows->addWidget(buttons);
}

bool dlgPreviewDocuments::ManagePreviewDocuments() { return exec() == QDialog::Accepted; }

void dlgPreviewDocuments::AddOneDocument() {
    for (const Text& path : questions_.LocateDocuments(this))
        AddDocument(path);
}

void dlgPreviewDocuments::AddDocument(TextView path) {
    if (path == documents_.GetDefaultPreviewFile())
        return;
    if (!ListContains(list_->Paths(), path))
        list_->AddPath(path);
    const Texts paths = list_->Paths();
    list_->SelectPath(static_cast<std::size_t>(std::ranges::find(paths, path) - paths.begin()));
}

void dlgPreviewDocuments::RemoveOneDocument() {
    list_->RemoveSelected();
    UpdateControls();
}

void dlgPreviewDocuments::UpdateControls() { remove_->setEnabled(!list_->selectedItems().isEmpty()); }

void dlgPreviewDocuments::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void dlgPreviewDocuments::dropEvent(QDropEvent* event) {
    for (const QUrl& url : event->mimeData()->urls()) {
        const Text path = ToText(url.toLocalFile());
        if (FileExists(path))
            AddDocument(path);
    }
    event->acceptProposedAction();
}

void dlgPreviewDocuments::accept() {
    const Text inUse = documents_.GetPreviewFile();
    const bool wasListed = ListContains(documents_.GetAllPreviewFiles(), inUse);
    documents_.SaveAllPreviewFiles(list_->Paths());
    const bool isDefault = inUse == documents_.GetDefaultPreviewFile();
    if (wasListed && !isDefault && !ListContains(documents_.GetAllPreviewFiles(), inUse))
        documents_.SetPreviewFile({});
    QDialog::accept();
}

}  // namespace tintora
