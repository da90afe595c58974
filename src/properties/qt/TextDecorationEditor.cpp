#include "properties/qt/TextDecorationEditor.h"

#include "language/PropertyValidation.h"
#include "language/Vocabulary.h"
#include "properties/qt/ControlLayout.h"
#include "text/Whitespace.h"
#include "text/qt/QtText.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>

namespace tintora {

namespace {

constexpr int Columns = 2;

/// The word with a capital.
QString CaptionOf(TextView word) {
    QString caption = ToQString(word);
    caption[0] = caption[0].toUpper();
    return caption;
}

}  // namespace

TextDecorationEditor::TextDecorationEditor(int number, const ControlSurroundings& surroundings, QWidget* parent)
    : ValueControl(number, surroundings, parent) {
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ControlGap);
    layout->setColumnStretch(Columns, 1);
    for (std::size_t box = 0; box < checks_.size(); ++box) {
        auto* const check = new QCheckBox(CaptionOf(TextDecorationBoxes::Words[box]), this);
        check->setObjectName(ToQString(TextDecorationBoxes::Controls[box]));
        check->installEventFilter(this);
        connect(check, &QCheckBox::clicked, this, [this, box](bool isTicked) {
            boxes_.Tick(static_cast<TextDecorationBoxes::Box>(box), isTicked);
            UpdateEditor();
            ReportChange();
        });
        layout->addWidget(check, static_cast<int>(box) / Columns, static_cast<int>(box) % Columns);
        checks_[box] = check;
    }
}

void TextDecorationEditor::SetLabel(const QString& label) {
    ValueControl::SetLabel(label);
    for (QCheckBox* const check : checks_)
        check->setAccessibleName(QStringLiteral("%1: %2").arg(label, check->text()));
}

void TextDecorationEditor::SetValue(TextView value) {
    boxes_.SetValue(value);
    UpdateEditor();
}

void TextDecorationEditor::Clear(const FrontDocument* /*front*/) {
    boxes_.Clear();
    UpdateEditor();
}

void TextDecorationEditor::UpdateEditor() {
    for (std::size_t index = 0; index < checks_.size(); ++index) {
        const auto box = static_cast<TextDecorationBoxes::Box>(index);
        checks_[index]->setChecked(boxes_.IsTicked(box));
        checks_[index]->setEnabled(boxes_.IsEnabled(box));
    }
}

bool TextDecorationEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        Q_EMIT PropertyHasFocus(PropertyName());
    return ValueControl::eventFilter(watched, event);
}

void TextDecorationEditor::EditProperty(int /*property*/) { FocusIfUsable(*checks_.front()); }

void TextDecorationEditor::Paste() {
    const Text text = Surroundings().clipboard.GetText();
    const TextView value = TrimmedView(text);
    if (value.empty() || !ValidatePropertyValue(PropertyNameFromNumber(PropertyName()), value))
        return;
    boxes_.Clear();
    boxes_.SetValue(value);
    UpdateEditor();
    ReportChange();
}

void TextDecorationEditor::Cut() {
    Copy();
    ClearSelection();
}

void TextDecorationEditor::Copy() {
    if (const Text value = GetValue(); !value.empty())
        Surroundings().clipboard.SetText(value);
}

void TextDecorationEditor::ClearSelection() {
    Clear(nullptr);
    ReportChange();
}

}  // namespace tintora
