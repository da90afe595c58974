#include "properties/qt/URLEditor.h"

#include "properties/ValueWords.h"
#include "properties/qt/ChoiceBox.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/FieldSelection.h"
#include "properties/qt/FileFilter.h"
#include "properties/qt/PresentRule.h"
#include "text/qt/QtText.h"

#include <QDropEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QToolButton>
#include <exception>

namespace tintora {

namespace {

/// The first file of what is dragged; "" if what comes first is none.
Text FirstFileOf(const QMimeData& content) {
    const QList<QUrl> urls = content.urls();
    return urls.isEmpty() || !urls.first().isLocalFile() ? Text() : ToText(urls.first().toLocalFile());
}

}  // namespace

URLEditor::URLEditor(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : ValueControl(number, surroundings, parent),
      field_(number),
      urlField_(new ChoiceBox(ChoiceBox::Kind::Editable, QStringLiteral("URLField"), QStringLiteral("images/photo.jpg"),
                              QStringLiteral("inherit"), this)),
      locate_(new QToolButton(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ControlGap);
    layout->addWidget(urlField_, 1);
    layout->addWidget(locate_);
    locate_->setObjectName(QStringLiteral("Locate"));
    locate_->setIcon(QIcon::fromTheme(QStringLiteral("document-open")));
    locate_->setToolTip(QStringLiteral("Locate a file"));
    locate_->setAutoRaise(true);
    locate_->setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    // The field would take a file for a text.
    urlField_->lineEdit()->installEventFilter(this);
    connect(locate_, &QToolButton::clicked, this, &URLEditor::LocateURL);
    connect(urlField_, &ChoiceBox::Chosen, this, [this](int index) { EnterText(urlField_->EntryAt(index)); });
    connect(urlField_, &ChoiceBox::Typed, this, [this] {
        EnterText(urlField_->ShownText());
        urlField_->NoteTextWritten();
    });
    connect(urlField_, &ChoiceBox::FocusHasCome, this, [this] { Q_EMIT PropertyHasFocus(PropertyName()); });
    connect(urlField_, &ChoiceBox::FocusHasGone, this, &ValueControl::PreviewIfDirty);
}

void URLEditor::SetLabel(const QString& label) {
    ValueControl::SetLabel(label);
    urlField_->setAccessibleName(label);
    locate_->setAccessibleName(QStringLiteral("%1: locate a file").arg(label));
}

void URLEditor::SetValue(TextView value) {
    field_.SetValue(value);
    ShowState();
}

void URLEditor::Clear(const FrontDocument* front) {
    if (PropertyName() != PlainURL) {
        const EditedDocument* const document = Surroundings().documents.GetActiveDocument();
        SetParentURL(document == nullptr ? Text() : document->GetFile());
        SetFilter(ImageFilter);
    }
    field_.Clear(front);
    ShowState();
}

void URLEditor::SetURLs(const Texts& urls) {
    field_.SetURLs(urls);
    ShowState();
}

void URLEditor::SelectURL(TextView text) {
    field_.SelectURL(text);
    ShowState();
}

void URLEditor::ShowState() { urlField_->ShowText(field_.List(), field_.FieldText()); }

void URLEditor::EnterText(TextView text) {
    field_.EnterText(text);
    ShowState();
    Report();
}

// What can't be passed on stays in the control, and is nobody's business. `Dirty` is set by nobody here.
void URLEditor::Report() {
    const bool wasDirty = Dirty();
    try {
        ReportChange();
    } catch (const std::exception&) {
    }
    SetDirty(wasDirty);
}

void URLEditor::EditProperty(int /*property*/) { FocusIfUsable(*urlField_); }

void URLEditor::Paste() { PutIntoSelection(*urlField_->lineEdit(), StripURL(Surroundings().clipboard.GetText())); }

void URLEditor::Cut() { CutSelection(*urlField_->lineEdit(), Surroundings().clipboard); }

void URLEditor::Copy() { CopySelection(*urlField_->lineEdit(), Surroundings().clipboard); }

void URLEditor::ClearSelection() { ClearSelectionOf(*urlField_->lineEdit()); }

void URLEditor::LocateURL() {
    EditedDocuments& documents = Surroundings().documents;
    const PresentRule rule(documents);
    const QPointer<URLEditor> self(this);
    QString path;
    try {
        const OpenDialog isOpen(Surroundings().flags);
        // The control may go while the dialogue is open.
        const AskFile ask = Surroundings().askFile;
        path = ask(QStringLiteral("Locate"), ToolkitFilter(field_.Filter()), this);
    } catch (const std::exception&) {
        return;
    }
    if (path.isEmpty() || self.isNull() || !rule.IsStillInFront())
        return;
    field_.Locate(documents.GetActiveDocument()->GetFile(), ToText(path));
    ShowState();
    Report();
}

void URLEditor::DropFile(const Text& path) {
    if (!field_.Drop(path))
        return;
    ShowState();
    Report();
}

bool URLEditor::eventFilter(QObject* watched, QEvent* event) {
    const auto takeOver = [&](auto* drop, auto handle) {
        if (!drop->mimeData()->hasUrls())
            return false;
        (this->*handle)(drop);
        return true;
    };
    switch (event->type()) {
        case QEvent::DragEnter: return takeOver(static_cast<QDragEnterEvent*>(event), &URLEditor::dragEnterEvent);
        case QEvent::DragMove: return takeOver(static_cast<QDragMoveEvent*>(event), &URLEditor::dragMoveEvent);
        case QEvent::Drop: return takeOver(static_cast<QDropEvent*>(event), &URLEditor::dropEvent);
        default: return ValueControl::eventFilter(watched, event);
    }
}

// A file that the filter doesn't hold is refused here, and doesn't go on to the window, which would open it.
void URLEditor::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void URLEditor::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(FilterHolds(field_.Filter(), FirstFileOf(*event->mimeData())));
}

void URLEditor::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    DropFile(FirstFileOf(*event->mimeData()));
}

}  // namespace tintora
