#include "properties/qt/LengthEditor.h"

#include "properties/qt/ChoiceBox.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/FieldSelection.h"
#include "properties/qt/FilteredField.h"
#include "settings/Settings.h"
#include "text/qt/QtText.h"

#include <QHBoxLayout>
#include <QKeyEvent>

namespace tintora {

namespace {

/// The signs as a list, in the order of their indexes.
ChoiceList SignsWith(int chosen) {
    ChoiceList signs;
    signs.Offer({u"", u"+", u"-"});
    signs.ChooseAt(static_cast<std::size_t>(chosen));
    return signs;
}

}  // namespace

LengthEditor::LengthEditor(int number, std::shared_ptr<LengthFields> fields, bool showSign,
                           const ControlSurroundings& surroundings, QWidget* parent)
    : ValueControl(number, surroundings, parent),
      fields_(std::move(fields)),
      sign_(showSign ? new ChoiceBox(ChoiceBox::Kind::Fixed, QStringLiteral("Sign"), QStringLiteral("+"),
                                     QStringLiteral("+"), this)
                     : nullptr),
      value_(new FilteredField(QStringLiteral("Value"), LengthFieldKey, QStringLiteral("000.00"),
                               QStringLiteral("0000"), this)),
      unit_(new ChoiceBox(ChoiceBox::Kind::Fixed, QStringLiteral("Unit"), QStringLiteral("text-bottom"),
                          QStringLiteral("mm"), this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ControlGap);
    if (sign_ != nullptr) {
        sign_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        layout->addWidget(sign_);
    }
    layout->addWidget(value_, 1);
    // As wide in each row, so that the units stand below one another.
    unit_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    layout->addWidget(unit_);
    ConnectParts();
    ShowState();
}

void LengthEditor::ConnectParts() {
    const auto reportFocus = [this] { Q_EMIT PropertyHasFocus(PropertyName()); };
    for (ChoiceBox* const list : {sign_, unit_}) {
        if (list == nullptr)
            continue;
        connect(list, &ChoiceBox::FocusHasCome, this, reportFocus);
        connect(list, &ChoiceBox::FocusHasGone, this, &ValueControl::PreviewIfDirty);
    }
    if (sign_ != nullptr) {
        connect(sign_, &ChoiceBox::Chosen, this, [this](int index) {
            fields_->ChooseSign(index);
            ReportAndUpdate();
        });
    }
    connect(unit_, &ChoiceBox::Chosen, this, [this](int index) {
        fields_->ChooseUnit(unit_->EntryAt(index));
        ReportAndUpdate();
    });
    connect(unit_, &ChoiceBox::ListHasDroppedDown, this, &ValueControl::ListHasDroppedDown);
    connect(value_, &QLineEdit::textEdited, this, [this](const QString& text) {
        fields_->EnterNumber(ToText(text));
        ReportAndUpdate();
    });
    connect(value_, &FilteredField::FocusHasCome, this, [this, reportFocus] {
        reportFocus();
        SetDirty(false);
    });
    connect(value_, &FilteredField::KeyWasTold, this, &LengthEditor::HandleKey);
    connect(value_, &FilteredField::MouseWasReleased, this, &LengthEditor::UpdateMenu);
}

void LengthEditor::SetLabel(const QString& label) {
    ValueControl::SetLabel(label);
    value_->setAccessibleName(label);
    unit_->setAccessibleName(QStringLiteral("%1: unit").arg(label));
    if (sign_ != nullptr)
        sign_->setAccessibleName(QStringLiteral("%1: sign").arg(label));
}

void LengthEditor::SetValue(TextView value) {
    fields_->SetValue(value);
    UpdateEditor();
}

void LengthEditor::Clear(const FrontDocument* /*front*/) {
    fields_->Clear(Settings(Surroundings().settings).GetPreferredUnits());
    UpdateEditor();
}

void LengthEditor::ShowState() {
    if (sign_ != nullptr) {
        sign_->ShowChoice(SignsWith(fields_->SignIndex()));
        sign_->setEnabled(fields_->TakesSign());
    }
    value_->ShowText(fields_->Number());
    value_->setEnabled(fields_->TakesNumber());
    unit_->ShowChoice(fields_->Units());
    unit_->MarkBad(fields_->IsBad());
}

// What fills the control says nothing of where the user is.
void LengthEditor::UpdateEditor() {
    ShowState();
    if (!Surroundings().flags.SettingUp)
        UpdateMenu();
}

void LengthEditor::ReportAndUpdate() {
    ShowState();
    ReportChange();
    UpdateEditor();
}

void LengthEditor::UpdateMenu() {
    PaletteMenus& menus = Surroundings().menus;
    if (!menus.IsEditorInFront())
        return;
    for (const TextView key : {u"miECut", u"miECopy", u"miEClear", u"miECommentOut"})
        menus.UpdateMenuItem(key, value_->hasSelectedText());
    if (Surroundings().clipboard.HasText())
        menus.UpdateMenuItem(u"miEPaste", true);
    menus.UpdateMenuItem(u"miEUndo", true);
    menus.UpdateMenuItem(u"miERedo", true);
}

void LengthEditor::EditProperty(int /*property*/) { FocusIfUsable(*value_); }

void LengthEditor::keyPressEvent(QKeyEvent* event) {
    if (const char16_t code = FilteredField::ClipboardCode(*event); code != 0)
        HandleKey(LengthFieldKey(code));
    else
        ValueControl::keyPressEvent(event);
}

void LengthEditor::HandleKey(FieldKey key) {
    switch (key) {
        case FieldKey::SelectsAll: SelectAll(); break;
        case FieldKey::Copies: CopyValue(); break;
        case FieldKey::Pastes: PasteValue(); break;
        case FieldKey::Cuts: CutValue(); break;
        case FieldKey::Passes:
        case FieldKey::IsDropped: break;
    }
}

void LengthEditor::SelectAll() { value_->selectAll(); }

void LengthEditor::CopyValue() { CopySelection(*value_, Surroundings().clipboard); }

void LengthEditor::CutValue() { CutSelection(*value_, Surroundings().clipboard); }

void LengthEditor::ClearSelection() { ClearSelectionOf(*value_); }

void LengthEditor::PasteValue() {
    if (fields_->PasteValue(Surroundings().clipboard.GetText()))
        ReportAndUpdate();
}

void LengthEditor::SelectUnit(TextView text) {
    fields_->SelectUnit(text);
    UpdateEditor();
}

}  // namespace tintora
