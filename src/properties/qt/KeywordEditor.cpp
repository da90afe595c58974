#include "properties/qt/KeywordEditor.h"

#include "properties/qt/ChoiceBox.h"
#include "properties/qt/ControlLayout.h"

#include <QHBoxLayout>

namespace tintora {

KeywordEditor::KeywordEditor(int number, std::shared_ptr<KeywordChoice> choice, const ControlSurroundings& surroundings,
                             QWidget* parent)
    : ValueControl(number, surroundings, parent),
      choice_(std::move(choice)),
      keywordValue_(new ChoiceBox(ChoiceBox::Kind::Editable, QStringLiteral("KeywordValue"),
                                  QStringLiteral("extra-condensed"), QStringLiteral("inherit"), this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(keywordValue_);
    connect(keywordValue_, &ChoiceBox::Chosen, this, [this](int index) { ChooseText(keywordValue_->EntryAt(index)); });
    connect(keywordValue_, &ChoiceBox::Entered, this, [this] {
        ChooseText(keywordValue_->ShownText());
        keywordValue_->NoteTextWritten();
    });
    connect(keywordValue_, &ChoiceBox::ListHasDroppedDown, this, &ValueControl::ListHasDroppedDown);
    connect(keywordValue_, &ChoiceBox::FocusHasCome, this, [this] { Q_EMIT PropertyHasFocus(PropertyName()); });
    connect(keywordValue_, &ChoiceBox::FocusHasGone, this, &ValueControl::PreviewIfDirty);
    ShowState();
}

void KeywordEditor::SetLabel(const QString& label) {
    ValueControl::SetLabel(label);
    keywordValue_->setAccessibleName(label);
}

void KeywordEditor::SetValue(TextView value) {
    choice_->SetValue(value);
    ShowState();
}

void KeywordEditor::Clear(const FrontDocument* front) {
    choice_->Clear(front);
    ShowState();
}

void KeywordEditor::ShowState() {
    keywordValue_->ShowChoice(choice_->List());
    keywordValue_->MarkBad(choice_->IsBad());
}

void KeywordEditor::ChooseText(TextView text) {
    choice_->Choose(text);
    ShowState();
    ReportChange();
}

void KeywordEditor::EditProperty(int /*property*/) { FocusIfUsable(*keywordValue_); }

void KeywordEditor::Paste() {
    const Text text = Surroundings().clipboard.GetText();
    if (text.empty())
        return;
    SetValue(text);
    ReportChange();
}

void KeywordEditor::Cut() {
    Copy();
    ClearSelection();
}

void KeywordEditor::Copy() {
    if (const Text value = GetValue(); !value.empty())
        Surroundings().clipboard.SetText(value);
}

void KeywordEditor::ClearSelection() {
    Clear(Surroundings().documents.GetActiveDocument());
    ReportChange();
}

}  // namespace tintora
