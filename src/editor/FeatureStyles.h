#pragma once

#include "editor/TokenStyles.h"
#include "language/TokenTypes.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <array>
#include <functional>

/// The features of the language, as the user chooses their looks.
namespace tintora {

struct LanguageFeature {
    TextView name;
    int tokenType;
};

/// In the order in which they are offered.
inline constexpr auto LanguageFeatures = std::to_array<LanguageFeature>({
    {u"Selectors", token_type::Selector},
    {u"Properties", token_type::PropertyName},
    {u"Unknown Properties", token_type::UnknownPropertyName},
    {u"Values", token_type::ValidValue},
    {u"Invalid Values", token_type::InvalidValue},
    {u"{ and }", token_type::Brace},
    {u": and ;", token_type::Punctuation},
    {u"Comments", token_type::Comment},
    {u"!important", token_type::Important},
    {u"@media", token_type::MediaHead},
});

/// The looks while they are being chosen: those of the ten features, and that of symbols (type 2), which is not
/// offered.
struct FeatureStyles {
    TokenStyle SelectorTokenStyle;
    TokenStyle AtMediaTokenStyle;
    TokenStyle PropertiesTokenStyle;
    TokenStyle BadPropertiesTokenStyle;
    TokenStyle ValueTokenStyle;
    TokenStyle InvalidValueTokenStyle;
    TokenStyle DeclarationDelimitersTokenStyle;
    TokenStyle PunctuationTokenStyle;
    TokenStyle CommentTokenStyle;
    TokenStyle ImportantTokenStyle;
    TokenStyle SymbolTokenStyle;

    /// The look of a type of tokens; `nullptr` for a type that has none here.
    [[nodiscard]] TokenStyle* Find(int tokenType) noexcept;
    [[nodiscard]] const TokenStyle* Find(int tokenType) const noexcept;

    friend bool operator==(const FeatureStyles&, const FeatureStyles&) = default;
};

/// The stored looks, and the defaults of those that aren't stored.
[[nodiscard]] FeatureStyles LoadTextEditingOptions(SettingsStore& store);

/// Stores the looks of the ten features, and calls `updateColorCoding` behind each, so that each repaints at once.
void ApplyTextEditingOptions(SettingsStore& store, const FeatureStyles& styles,
                             const std::function<void()>& updateColorCoding);

}  // namespace tintora
