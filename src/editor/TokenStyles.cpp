#include "editor/TokenStyles.h"

#include "language/Colors.h"
#include "language/Words.h"
#include "settings/Settings.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tintora {

namespace {

constexpr std::int32_t Color(unsigned red, unsigned green, unsigned blue) {
    return static_cast<std::int32_t>(ColorFromComponents(red, green, blue));
}

struct TypeAndStyle {
    int type;
    TokenStyle style;
};

constexpr std::int32_t Own = DefaultTokenColor;

constexpr auto DefaultStyles = std::to_array<TypeAndStyle>({
    {2, {Color(0, 0, 0), Own, 0, 1}},
    {6, {Color(192, 192, 192), Own, 0, 1}},
    {17, {Color(0, 0, 0), Own, 0, 1}},
    {19, {Color(101, 137, 158), Own, 0, 0}},
    {20, {Color(0, 0, 0), Color(255, 0, 0), 1, 0}},
    {21, {Color(118, 180, 209), Own, 0, 1}},
    {23, {Color(255, 0, 0), Own, 0, 1}},
    {24, {Color(128, 91, 168), Own, 0, 1}},
    {25, {Color(128, 91, 168), Own, 0, 1}},
    {26, {Color(0, 255, 0), Own, 0, 1}},
    {27, {Color(0, 0, 0), Color(255, 0, 0), 1, 0}},
    {28, {Color(255, 128, 64), Own, 0, 0}},
    {32, {Color(0, 0, 0), Own, 0, 1}},
});

std::int32_t StoredNumber(TextView part) {
    constexpr double Least = std::numeric_limits<std::int32_t>::min();
    constexpr double Most = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(LeadingNumber(part), Least, Most));
}

}  // namespace

std::optional<TokenStyle> GetDefaultTokenStyle(int tokenType) {
    const auto* const found = std::find_if(DefaultStyles.begin(), DefaultStyles.end(),
                                           [=](const TypeAndStyle& row) { return row.type == tokenType; });
    return found == DefaultStyles.end() ? std::nullopt : std::optional(found->style);
}

std::optional<TokenStyle> GetTokenStyle(SettingsStore& store, int tokenType) {
    const Texts parts = GetWordsFromText(Settings(store).GetTokenStyleText(tokenType), u"/");
    if (parts.size() != 4)
        return GetDefaultTokenStyle(tokenType);
    return TokenStyle{StoredNumber(parts[0]), StoredNumber(parts[1]), StoredNumber(parts[2]), StoredNumber(parts[3])};
}

void SaveTokenStyle(SettingsStore& store, int tokenType, const TokenStyle& style) {
    const Texts parts = {NumberText(style.textColor), NumberText(style.backgroundColor), NumberText(style.italic),
                         NumberText(style.bold)};
    Settings(store).SaveTokenStyleText(tokenType, JoinItems(parts, u"/"));
}

}  // namespace tintora
