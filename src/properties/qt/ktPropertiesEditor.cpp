#include "properties/qt/ktPropertiesEditor.h"

#include "properties/qt/GroupEditorForm.h"
#include "properties/qt/PropertiesPane.h"
#include "properties/qt/PropertySelector.h"
#include "properties/qt/SeparatorHandle.h"
#include "text/qt/QtText.h"

#include <QKeyEvent>
#include <QShowEvent>
#include <QVBoxLayout>

namespace tintora {

ktPropertiesEditor::ktPropertiesEditor(const Surroundings& surroundings, QWidget* parent)
    : QWidget(parent),
      documents_(surroundings.documents),
      pane_(new PropertiesPane({surroundings.documents, surroundings.settings, flags_, surroundings.clipboard,
                                surroundings.menus, surroundings.askColor, surroundings.askFile},
                               surroundings.warnings, this)),
      host_({flags_, *pane_, surroundings.documents, surroundings.settings}) {
    setObjectName(QStringLiteral("ktPropertiesEditor"));
    setWindowTitle(QStringLiteral("Properties"));
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(pane_);
    setFocusProxy(&pane_->Selector());
    connect(pane_, &PropertiesPane::ItemChosen, this, [this](const QString& text) { EditProperty(ToText(text)); });
    connect(pane_, &PropertiesPane::PropertyHasFocus, this, [this](int property) { PropertyHasFocus(property); });
    connect(pane_, &PropertiesPane::AutoSelectEditorsClicked, this,
            [this](bool isOn) { host_.SaveAutoSelectEditors(isOn); });
    SetUpPropertySelector();
    host_.Load();
    pane_->setEnabled(documents_.GetActiveDocument() != nullptr);
}

ktPropertiesEditor::~ktPropertiesEditor() {
    // The controls have the flags.
    pane_->disconnect(this);
    delete pane_;
}

void ktPropertiesEditor::UpdateDocument() {
    EditedDocument* const document = documents_.GetActiveDocument();
    if (document == nullptr) {
        Disable();
        SetProperties({});
        return;
    }
    pane_->setEnabled(true);
    document->UpdatePropertiesEditor();
}

void ktPropertiesEditor::Enable() {
    pane_->setEnabled(true);
    host_.Enable();
}

void ktPropertiesEditor::Disable() {
    pane_->setEnabled(documents_.GetActiveDocument() != nullptr);
    host_.Disable();
}

void ktPropertiesEditor::RefreshCurrentEditor() { pane_->RefreshCurrentEditor(); }

void ktPropertiesEditor::SetUpPropertySelector() { pane_->Selector().SetUpPropertySelector(); }

void ktPropertiesEditor::SetAutoSelectEditors(bool isOn) { pane_->SetAutoSelectEditors(isOn); }

void ktPropertiesEditor::DragSeparator(int offset) { pane_->Separator().Drag(offset); }

void ktPropertiesEditor::Paste() {
    if (GroupEditorForm* const form = pane_->Form())
        form->Paste();
}

void ktPropertiesEditor::Cut() {
    if (GroupEditorForm* const form = pane_->Form())
        form->Cut();
}

void ktPropertiesEditor::Copy() {
    if (GroupEditorForm* const form = pane_->Form())
        form->Copy();
}

void ktPropertiesEditor::Clear() {
    if (GroupEditorForm* const form = pane_->Form())
        form->ClearSelection();
}

void ktPropertiesEditor::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous())
        UpdateDocument();
}

void ktPropertiesEditor::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Q_EMIT TextWanted();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace tintora
