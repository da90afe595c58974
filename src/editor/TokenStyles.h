#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <cstdint>
#include <optional>

/// How each type of token looks.
namespace tintora {

/// A colour as 24 bits with red in the lowest byte; -1 stands for the control's own.
inline constexpr std::int32_t DefaultTokenColor = -1;

struct TokenStyle {
    std::int32_t textColor = DefaultTokenColor;
    std::int32_t backgroundColor = DefaultTokenColor;
    std::int32_t italic = 0;
    std::int32_t bold = 0;

    friend bool operator==(const TokenStyle&, const TokenStyle&) = default;
};

/// The look that a type has by nature; nothing for a type that is left to the control.
[[nodiscard]] std::optional<TokenStyle> GetDefaultTokenStyle(int tokenType);

/// The stored look of a type, and its default where none is stored, or one that isn't four parts joined by "/". A part
/// that is no number is 0.
[[nodiscard]] std::optional<TokenStyle> GetTokenStyle(SettingsStore& store, int tokenType);

/// Stores the look of a type. Whoever calls it repaints.
void SaveTokenStyle(SettingsStore& store, int tokenType, const TokenStyle& style);

}  // namespace tintora
