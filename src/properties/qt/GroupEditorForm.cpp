#include "properties/qt/GroupEditorForm.h"

#include "properties/GroupEditors.h"
#include "properties/OnceAskedDocument.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/LabeledRows.h"
#include "properties/qt/ValueControl.h"
#include "properties/qt/ValueControls.h"
#include "text/qt/QtText.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>

namespace tintora {

namespace {

constexpr int Gap = 6;
constexpr int GroupGap = 12;

/// Nothing is painted while it lives.
class PaintingPause {
  public:
    explicit PaintingPause(QWidget& widget) : widget_(widget) { widget_.setUpdatesEnabled(false); }
    ~PaintingPause() { widget_.setUpdatesEnabled(true); }
    PaintingPause(const PaintingPause&) = delete;
    PaintingPause& operator=(const PaintingPause&) = delete;
    PaintingPause(PaintingPause&&) = delete;
    PaintingPause& operator=(PaintingPause&&) = delete;

  private:
    QWidget& widget_;
};

}  // namespace

GroupEditorForm::GroupEditorForm(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : QWidget(parent),
      surroundings_(surroundings),
      core_(number, {surroundings.flags, *this, surroundings.documents, surroundings.settings}),
      groups_(new QVBoxLayout(this)) {
    setObjectName(ToQString(FindGroupEditor(number)->className));
    groups_->setContentsMargins(Gap, Gap, Gap, Gap);
    groups_->setSpacing(GroupGap);
}

void GroupEditorForm::SetProperties(const Texts& declarations) {
    // Nothing is to be painted anew then either.
    if (ChangingProperty())
        return;
    const PaintingPause pause(*this);
    core_.SetProperties(declarations);
}

void GroupEditorForm::PropertyHasChanged(const Text& value, int number) {
    // To write into the text takes the focus away.
    QWidget* const focus = QApplication::focusWidget();
    const QPointer<QWidget> part = focus != nullptr && isAncestorOf(focus) ? focus : nullptr;
    core_.PropertyHasChanged(value, number);
    if (part != nullptr && !part->hasFocus())
        part->setFocus(Qt::OtherFocusReason);
}

void GroupEditorForm::ClearPropertyEditors() {
    const FlagScope settingUp(surroundings_.flags.SettingUp);
    Clear();
}

void GroupEditorForm::Enable() { SetAllUsable(core_.CanBeEnabled()); }

void GroupEditorForm::Disable() { SetAllUsable(false); }

void GroupEditorForm::EditProperty(int property) {
    const FocusPlace place = PlaceOfFocus(Number(), property);
    if (place.row == nullptr)
        return;
    RevealSection(place.row->section);
    FindControl(place.row->number)->EditProperty(property);
}

void GroupEditorForm::Paste() {
    if (ValueControl* const control = ControlWithFocus())
        control->Paste();
}

void GroupEditorForm::Cut() {
    if (ValueControl* const control = ControlWithFocus())
        control->Cut();
}

void GroupEditorForm::Copy() {
    if (ValueControl* const control = ControlWithFocus())
        control->Copy();
}

void GroupEditorForm::ClearSelection() {
    if (ValueControl* const control = ControlWithFocus())
        control->ClearSelection();
}

ValueControl* GroupEditorForm::FindControl(int number) const {
    const auto found = controls_.find(number);
    return found == controls_.end() ? nullptr : found->second;
}

ValueControl* GroupEditorForm::MakeControl(const ControlRow& row, QWidget* parent) {
    ValueControl* const control = MakeValueControl(row, surroundings_, parent);
    controls_.emplace(row.number, control);
    connect(control, &ValueControl::PropertyHasChanged, this, &GroupEditorForm::PropertyHasChanged);
    connect(control, &ValueControl::PropertyHasFocus, this, &GroupEditorForm::PropertyHasFocus);
    connect(control, &ValueControl::ListHasDroppedDown, this, [this] { core_.ListHasDroppedDown(); });
    return control;
}

ValueControl* GroupEditorForm::AddRow(LabeledRows& rows, const ControlRow& row) {
    ValueControl* const control = MakeControl(row, &rows);
    rows.AddRow(ToQString(row.label), PropertyToolTip(row.number), control);
    return control;
}

void GroupEditorForm::FinishControls() {
    groups_->addStretch(1);
    const FlagScope settingUp(surroundings_.flags.SettingUp);
    for (const auto& [number, control] : controls_)
        control->Clear(nullptr);
    SetAllUsable(false);
}

void GroupEditorForm::RevealSection(TextView /*section*/) {}

void GroupEditorForm::EnabledChanged(bool /*isEnabled*/) {}

bool GroupEditorForm::event(QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Polish || type == QEvent::LayoutRequest || type == QEvent::Resize)
        AlignRows(findChildren<LabeledRows*>(), width() - 2 * Gap);
    return QWidget::event(event);
}

void GroupEditorForm::Clear() {
    const OnceAskedDocument front(surroundings_.documents.GetActiveDocument());
    for (const auto& [number, control] : controls_)
        control->Clear(&front);
}

void GroupEditorForm::SetValue(int number, TextView value) {
    if (ValueControl* const control = FindControl(number))
        control->SetValue(value);
}

Text GroupEditorForm::GetValue(int number) const {
    const ValueControl* const control = FindControl(number);
    return control == nullptr ? Text() : control->GetValue();
}

void GroupEditorForm::SetUsable(int number, bool isUsable) {
    if (isUsable)
        unusable_.erase(number);
    else
        unusable_.insert(number);
    if (ValueControl* const control = FindControl(number))
        control->SetUsable(isEnabled_ && isUsable);
}

void GroupEditorForm::ShowSection(TextView /*section*/) {}

void GroupEditorForm::MarkSection(TextView /*section*/, bool /*hasDeclaration*/) {}

ValueControl* GroupEditorForm::ControlWithFocus() const {
    const QWidget* const focus = QApplication::focusWidget();
    const auto found = std::find_if(controls_.begin(), controls_.end(), [=](const auto& entry) {
        return entry.second == focus || (focus != nullptr && entry.second->isAncestorOf(focus));
    });
    return found == controls_.end() ? nullptr : found->second;
}

void GroupEditorForm::SetAllUsable(bool isEnabled) {
    isEnabled_ = isEnabled;
    for (const auto& [number, control] : controls_)
        control->SetUsable(isEnabled && !unusable_.contains(number));
    EnabledChanged(isEnabled);
}

int GroupEditorForm::LeastWidthOfControls() const {
    int width = 0;
    // A row of its own can be as wide as the form; what stands in rows is asked for there.
    for (const auto& [number, control] : controls_) {
        if (control->parentWidget() == this && !control->isHidden())
            width = std::max(width, control->minimumSizeHint().width());
    }
    return width;
}

QSize GroupEditorForm::minimumSizeHint() const {
    const int rows = LeastWidthOfRows(findChildren<LabeledRows*>());
    return {std::max(rows, LeastWidthOfControls()) + 2 * Gap, groups_->minimumSize().height()};
}

}  // namespace tintora
