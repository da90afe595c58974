#include "editor/ColorCoding.h"

#include <array>
#include <memory>

namespace tintora {

namespace {

/// The types that have styles, in the order in which they are set.
constexpr auto StyledTypes = std::to_array({24, 19, 20, 17, 23, 21, 2, 6, 25, 26, 27, 28, 32});

SourceStyles::Use UseOf(std::int32_t color) {
    return color == DefaultTokenColor ? SourceStyles::Use::DefaultColor : SourceStyles::Use::ThisColor;
}

std::int32_t Shown(std::int32_t color) { return color == DefaultTokenColor ? 0 : color; }

}  // namespace

void SetupTokenStyle(SourceStyles& styles, int tokenType, const TokenStyle& style) {
    styles.SetForegroundColor(tokenType, Shown(style.textColor), UseOf(style.textColor));
    styles.SetBackgroundColor(tokenType, Shown(style.backgroundColor), UseOf(style.backgroundColor));
    styles.SetFontStyle(tokenType,
                        (style.bold != 0 ? SourceStyles::Bold : 0) + (style.italic != 0 ? SourceStyles::Italic : 0));
}

void SetupColorCoding(SourceView& view, const StyleOfType& styleOf) {
    view.Buffer().SetLex(std::make_unique<LexClass>());
    for (const int type : StyledTypes) {
        if (const std::optional<TokenStyle> style = styleOf(type))
            SetupTokenStyle(view.Styles(), type, *style);
    }
}

}  // namespace tintora
