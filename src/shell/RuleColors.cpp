#include "shell/RuleColors.h"

#include "language/Declarations.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <algorithm>

namespace tintora {

namespace {

std::optional<ColorValue> ColorToShow(TextView value) {
    const Text text = LowerCase(StripImportant(TrimmedView(value)));
    if (!IsValidColor(text) || IsSystemColorKeyword(text))
        return std::nullopt;
    const ColorValue color = ColorValueFromText(text);
    // A word that has no colour of its own gives black.
    if (color == 0 && IsColorKeyword(text) && text != u"black")
        return std::nullopt;
    return color;
}

}  // namespace

std::optional<ColorValue> RuleColor(const Texts& declarations, TextView property) {
    const auto found = std::find_if(declarations.rbegin(), declarations.rend(), [&](const Text& declaration) {
        return EqualsLowered(GetDeclarationName(declaration), property);
    });
    return found == declarations.rend() ? std::nullopt : ColorToShow(GetDeclarationValue(*found));
}

std::vector<ColorValue> ColorsToShow(const Texts& values) {
    std::vector<ColorValue> colors;
    for (const Text& value : values) {
        const std::optional<ColorValue> color = ColorToShow(value);
        if (color && std::ranges::find(colors, *color) == colors.end())
            colors.push_back(*color);
    }
    return colors;
}

}  // namespace tintora
