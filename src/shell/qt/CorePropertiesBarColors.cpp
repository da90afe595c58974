// The colour tools of the toolbar of core properties.

#include "language/Vocabulary.h"
#include "shell/CorePropertiesHost.h"
#include "shell/RuleColors.h"
#include "shell/qt/ColorToolIcon.h"
#include "shell/qt/CorePropertiesBar.h"
#include "text/qt/QtText.h"

#include <QAction>
#include <QPointer>

namespace tintora {

namespace {

QColor ToQColor(ColorValue color) {
    return QColor::fromRgb(static_cast<int>(color & 0xFFU), static_cast<int>((color >> 8U) & 0xFFU),
                           static_cast<int>((color >> 16U) & 0xFFU));
}

std::optional<QColor> ColorOf(const Texts& declarations, TextView property) {
    const std::optional<ColorValue> color = RuleColor(declarations, property);
    return color ? std::optional(ToQColor(*color)) : std::nullopt;
}

}  // namespace

void CorePropertiesBar::ReadColors(const Texts& declarations) {
    color_ = ColorOf(declarations, u"color");
    backgroundColor_ = ColorOf(declarations, u"background-color");
    ShowColors();
}

void CorePropertiesBar::ShowColors() {
    Action(u"miColor")->setIcon(ColorToolIcon(ColorToolSign::Letter, palette(), color_));
    Action(u"miBackgroundColor")->setIcon(ColorToolIcon(ColorToolSign::Ground, palette(), backgroundColor_));
}

void CorePropertiesBar::EditColorGM() { EditColor(u"color", QStringLiteral("Edit Text Color")); }

void CorePropertiesBar::EditBackgroundColorGM() {
    EditColor(u"background-color", QStringLiteral("Edit Background Color"));
}

void CorePropertiesBar::EditColor(TextView property, const QString& title) {
    const FrontDocument* const sheet = host_.ActiveStyleSheet();
    if (!IsStillInFront(sheet))
        return;
    ColorQuestion question{title, ColorOf(host_.CurrentDeclarations(), property), {}};
    for (const ColorValue color : ColorsToShow(GetCurrentColorList(sheet)))
        question.customColors.append(ToQColor(color));
    const QPointer<CorePropertiesBar> bar(this);
    const std::optional<QColor> answer = askColor_(question, this);
    // Meanwhile another start of the program may have brought another style sheet to the front.
    if (bar.isNull() || !answer || !IsStillInFront(sheet))
        return;
    host_.PropertyHasChanged(ToText(answer->name(QColor::HexRgb)), PropertyNumberFromName(property));
}

}  // namespace tintora
