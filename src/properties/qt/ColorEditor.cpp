#include "properties/qt/ColorEditor.h"

#include "properties/qt/ChoiceBox.h"
#include "properties/qt/ColorSwatch.h"
#include "properties/qt/ControlLayout.h"
#include "properties/qt/Eyedropper.h"
#include "properties/qt/FieldSelection.h"
#include "properties/qt/FilteredField.h"
#include "properties/qt/SystemColors.h"
#include "text/Whitespace.h"
#include "text/qt/QtText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPointer>
#include <QStackedWidget>
#include <exception>
#include <utility>

namespace tintora {

namespace {

ChoiceList ModesWith(ColorMode chosen) {
    ChoiceList modes;
    modes.Offer({ColorModeCaptions.begin(), ColorModeCaptions.end()});
    modes.ChooseAt(static_cast<std::size_t>(chosen));
    return modes;
}

ScreenColor& SourceOf(const ControlSurroundings& surroundings) {
    return surroundings.screenColor == nullptr ? DesktopColor() : *surroundings.screenColor;
}

/// What the chooser offers besides.
QList<QColor> ColorsOf(const FrontDocument* front, const QPalette& palette) {
    QList<QColor> colors;
    for (const Text& value : GetCurrentColorList(front)) {
        const TextView color = TrimmedView(value);
        if (IsValidColor(color))
            colors.append(DisplayColor(ColorValueFromText(color), palette));
    }
    return colors;
}

QString LongestDigits() { return QStringLiteral("dddddd"); }

}  // namespace

ColorEditor::ColorEditor(int number, std::shared_ptr<ColorFields> fields, const ControlSurroundings& surroundings,
                         QWidget* parent)
    : ValueControl(number, surroundings, parent),
      fields_(std::move(fields)),
      mode_(new ChoiceBox(ChoiceBox::Kind::Fixed, QStringLiteral("ColorMode"), QStringLiteral("Keywords"),
                          QStringLiteral("rgb"), this)),
      selector_(new ChoiceBox(ChoiceBox::Kind::Fixed, QStringLiteral("ColorSelector"), QStringLiteral("black"),
                              QStringLiteral("black"), this)),
      rgb_(new FilteredField(QStringLiteral("RGBEditText"), RGBFieldKey, LongestDigits(), LongestDigits(), this)),
      hex_(new FilteredField(QStringLiteral("HexEditText"), HexFieldKey, LongestDigits(), LongestDigits(), this)),
      parts_(new QStackedWidget(this)),
      preview_(new ColorSwatch(QStringLiteral("ColorPreview"), this)),
      picker_(new Eyedropper(QStringLiteral("ColorPicker"), SourceOf(surroundings), this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ControlGap);
    preview_->setToolTip(QStringLiteral("Click to pick a color using a color chooser"));
    layout->addWidget(mode_, 2);
    for (QWidget* const part :
         {static_cast<QWidget*>(selector_), static_cast<QWidget*>(rgb_), static_cast<QWidget*>(hex_)})
        parts_->addWidget(part);
    parts_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(parts_, 3);
    layout->addWidget(preview_);
    layout->addWidget(picker_);
    ConnectLists();
    ConnectFields();
    ConnectPicker();
    ShowState();
}

void ColorEditor::ConnectLists() {
    connect(mode_, &ChoiceBox::Chosen, this, [this](int index) {
        fields_->ChooseMode(static_cast<ColorMode>(index), Surroundings().documents.GetActiveDocument());
        ShowState();
        if (!GetValue().empty())
            ReportChange();
    });
    connect(selector_, &ChoiceBox::Chosen, this, [this](int index) {
        fields_->ChooseWord(selector_->EntryAt(index));
        ShowState();
        ReportChange();
        SetDirty(false);
    });
    for (const ChoiceBox* const list : {mode_, selector_})
        connect(list, &ChoiceBox::FocusHasCome, this, [this] { Q_EMIT PropertyHasFocus(PropertyName()); });
}

void ColorEditor::ConnectFields() {
    const auto connectField = [this](FilteredField* field, void (ColorFields::*enter)(TextView)) {
        connect(field, &QLineEdit::textEdited, this, [this, enter](const QString& text) {
            (*fields_.*enter)(ToText(text));
            ShowState();
            ReportChange();
        });
        connect(field, &FilteredField::FocusHasCome, this, [this] { Q_EMIT PropertyHasFocus(PropertyName()); });
    };
    connectField(rgb_, &ColorFields::EnterRGB);
    connectField(hex_, &ColorFields::EnterHex);
}

void ColorEditor::ConnectPicker() {
    connect(preview_, &QToolButton::clicked, this, &ColorEditor::EditColorWithDialogGM);
    connect(picker_, &Eyedropper::SearchBegins, this, [this] {
        searchedFor_.emplace(Surroundings().documents);
        previewBefore_ = fields_->Preview();
    });
    connect(picker_, &Eyedropper::ColorSeen, this, [this](const QColor& color) {
        fields_->ShowInPreview(ColorValueOf(color));
        ShowPreview();
    });
    const auto putBack = [this] {
        fields_->ShowInPreview(previewBefore_);
        ShowPreview();
    };
    connect(picker_, &Eyedropper::ColorPicked, this, [this, putBack](const QColor& color) {
        if (searchedFor_ && searchedFor_->IsStillInFront())
            TakeColor(color);
        else
            putBack();
    });
    connect(picker_, &Eyedropper::SearchEnds, this, putBack);
}

void ColorEditor::SetLabel(const QString& label) {
    ValueControl::SetLabel(label);
    mode_->setAccessibleName(QStringLiteral("%1: form").arg(label));
    selector_->setAccessibleName(label);
    rgb_->setAccessibleName(QStringLiteral("%1: rgb").arg(label));
    hex_->setAccessibleName(QStringLiteral("%1: hexadecimal").arg(label));
    preview_->setAccessibleName(QStringLiteral("%1: choose").arg(label));
    picker_->setAccessibleName(QStringLiteral("%1: pick from the screen").arg(label));
}

void ColorEditor::SetValue(TextView value) {
    fields_->SetValue(value);
    ShowState();
}

void ColorEditor::Clear(const FrontDocument* front) {
    fields_->Clear(front);
    ShowState();
}

void ColorEditor::ShowState() {
    mode_->ShowChoice(ModesWith(fields_->Mode()));
    parts_->setCurrentWidget(&VisiblePart());
    rgb_->ShowText(fields_->RGBText());
    hex_->ShowText(fields_->HexText());
    if (VisibleField() == nullptr)
        selector_->ShowChoice(fields_->Words());
    selector_->MarkBad(&VisiblePart() == selector_ && fields_->IsBad());
    rgb_->MarkBad(&VisiblePart() == rgb_ && fields_->IsBad());
    hex_->MarkBad(&VisiblePart() == hex_ && fields_->IsBad());
    ShowPreview();
}

void ColorEditor::ShowPreview() { preview_->SetColor(DisplayColor(fields_->Preview(), palette())); }

QWidget& ColorEditor::VisiblePart() const {
    if (QWidget* const field = VisibleField())
        return *field;
    return *selector_;
}

FilteredField* ColorEditor::VisibleField() const {
    switch (fields_->Mode()) {
        case ColorMode::RGB: return rgb_;
        case ColorMode::Hex: return hex_;
        default: return nullptr;
    }
}

void ColorEditor::TakeColor(const QColor& color) {
    fields_->TakeColor(ColorValueOf(color));
    ShowState();
    ReportChange();
}

void ColorEditor::EditColorWithDialogGM() {
    const PresentRule rule(Surroundings().documents);
    const QPointer<ColorEditor> self(this);
    std::optional<QColor> color;
    try {
        const OpenDialog isOpen(Surroundings().flags);
        // The control may go while the dialogue is open.
        const AskColor ask = Surroundings().askColor;
        color = ask({QStringLiteral("Choose a Color"), DisplayColor(ColorValueFromText(GetValue()), palette()),
                     ColorsOf(Surroundings().documents.GetActiveDocument(), palette())},
                    this);
    } catch (const std::exception&) {
        return;
    }
    if (!color || self.isNull() || !rule.IsStillInFront())
        return;
    TakeColor(*color);
    PreviewIfDirty();
}

// The colours of the system are the palette's.
void ColorEditor::changeEvent(QEvent* event) {
    ValueControl::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowPreview();
}

void ColorEditor::EditProperty(int /*property*/) { FocusIfUsable(VisiblePart()); }

void ColorEditor::Paste() {
    if (FilteredField* const field = VisibleField())
        PutIntoSelection(*field, Surroundings().clipboard.GetText());
}

void ColorEditor::Cut() {
    if (FilteredField* const field = VisibleField())
        CutSelection(*field, Surroundings().clipboard);
}

void ColorEditor::Copy() {
    if (const FilteredField* const field = VisibleField())
        CopySelection(*field, Surroundings().clipboard);
}

void ColorEditor::ClearSelection() {
    if (FilteredField* const field = VisibleField())
        ClearSelectionOf(*field);
}

}  // namespace tintora
