#include "properties/qt/CompoundControl.h"

#include "properties/qt/ColorEditor.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/FieldSelection.h"
#include "properties/qt/KeywordEditor.h"
#include "properties/qt/LengthEditor.h"
#include "settings/Settings.h"
#include "text/qt/QtText.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <utility>

namespace tintora {

CompoundControl::CompoundControl(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : ValueControl(number, surroundings, parent) {}

ValueControl& CompoundControl::MakePart(const ControlPart& part, std::shared_ptr<KeywordChoice> choice) {
    return Adopt(part, new KeywordEditor(part.number, std::move(choice), Surroundings(), this));
}

ValueControl& CompoundControl::MakePart(const ControlPart& part, std::shared_ptr<LengthFields> fields) {
    return Adopt(part, new LengthEditor(part.number, std::move(fields), part.showSign, Surroundings(), this));
}

ValueControl& CompoundControl::MakePart(const ControlPart& part, std::shared_ptr<ColorFields> fields) {
    return Adopt(part, new ColorEditor(part.number, std::move(fields), Surroundings(), this));
}

template <typename Control>
ValueControl& CompoundControl::Adopt(const ControlPart& part, Control* control) {
    control->setObjectName(ToQString(part.control));
    control->setToolTip(PropertyToolTip(part.number));
    connect(control, &ValueControl::PropertyHasChanged, this,
            [this](const Text& /*value*/, int number) { HandlePartChange(number); });
    connect(control, &ValueControl::PropertyHasFocus, this,
            [this](int number) { Q_EMIT PropertyHasFocus(FocusNumber(number)); });
    connect(control, &ValueControl::ListHasDroppedDown, this, &ValueControl::ListHasDroppedDown);
    parts_.push_back({control, ToQString(part.label), [control] { control->ShowState(); }});
    return *control;
}

QGridLayout& CompoundControl::MakeGrid() {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(ControlGap);
    grid->setColumnStretch(1, 1);
    return *grid;
}

void CompoundControl::AddRow(QGridLayout& grid, const ControlPart& part, ValueControl& control) {
    auto* const label = new QLabel(ToQString(part.label), this);
    label->setToolTip(control.toolTip());
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(&control, row, 1);
}

void CompoundControl::SetLabel(const QString& label) {
    ValueControl::SetLabel(label);
    for (const Part& part : parts_)
        part.control->SetLabel(part.label == label ? label : QStringLiteral("%1: %2").arg(label, part.label));
}

void CompoundControl::ShowState() {
    for (const Part& part : parts_)
        part.show();
    UpdateEditor();
}

void CompoundControl::HandlePartChange(int /*number*/) {
    UpdateEditor();
    ReportChange();
}

void CompoundControl::EditProperty(int property) {
    const auto part =
        std::ranges::find_if(parts_, [=](const Part& each) { return each.control->PropertyName() == property; });
    (part == parts_.end() ? MainPart() : *part->control).EditProperty(property);
}

void CompoundControl::ReportFocusOf(QWidget& field) { field.installEventFilter(this); }

bool CompoundControl::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        Q_EMIT PropertyHasFocus(PropertyName());
    return ValueControl::eventFilter(watched, event);
}

Text CompoundControl::PreferredUnits() const { return Settings(Surroundings().settings).GetPreferredUnits(); }

ValueControl* CompoundControl::PartWithFocus() const {
    const QWidget* const focus = focusWidget();
    const auto part = std::ranges::find_if(parts_, [=](const Part& each) { return each.control->isAncestorOf(focus); });
    return part == parts_.end() ? nullptr : part->control;
}

void CompoundControl::Paste() {
    if (ValueControl* const part = PartWithFocus())
        part->Paste();
    else if (auto* const field = qobject_cast<QLineEdit*>(focusWidget()))
        PutIntoSelection(*field, Surroundings().clipboard.GetText());
}

void CompoundControl::Cut() {
    if (ValueControl* const part = PartWithFocus())
        part->Cut();
    else if (auto* const field = qobject_cast<QLineEdit*>(focusWidget()))
        CutSelection(*field, Surroundings().clipboard);
}

void CompoundControl::Copy() {
    if (ValueControl* const part = PartWithFocus())
        part->Copy();
    else if (const auto* const field = qobject_cast<QLineEdit*>(focusWidget()))
        CopySelection(*field, Surroundings().clipboard);
}

void CompoundControl::ClearSelection() {
    if (ValueControl* const part = PartWithFocus())
        part->ClearSelection();
    else if (auto* const field = qobject_cast<QLineEdit*>(focusWidget()))
        ClearSelectionOf(*field);
}

}  // namespace tintora
