#include "editor/FeatureStyles.h"

#include <utility>

namespace tintora {

namespace {

struct TypeAndMember {
    int tokenType;
    TokenStyle FeatureStyles::*style;
};

constexpr auto Members = std::to_array<TypeAndMember>({
    {24, &FeatureStyles::SelectorTokenStyle},
    {25, &FeatureStyles::AtMediaTokenStyle},
    {19, &FeatureStyles::PropertiesTokenStyle},
    {20, &FeatureStyles::BadPropertiesTokenStyle},
    {21, &FeatureStyles::ValueTokenStyle},
    {27, &FeatureStyles::InvalidValueTokenStyle},
    {23, &FeatureStyles::DeclarationDelimitersTokenStyle},
    {17, &FeatureStyles::PunctuationTokenStyle},
    {6, &FeatureStyles::CommentTokenStyle},
    {26, &FeatureStyles::ImportantTokenStyle},
    {2, &FeatureStyles::SymbolTokenStyle},
});

/// The order in which the looks are stored.
constexpr auto StoredTypes = std::to_array({24, 19, 20, 21, 27, 23, 17, 6, 25, 26});

}  // namespace

const TokenStyle* FeatureStyles::Find(int tokenType) const noexcept {
    for (const TypeAndMember& row : Members) {
        if (row.tokenType == tokenType)
            return &(this->*row.style);
    }
    return nullptr;
}

TokenStyle* FeatureStyles::Find(int tokenType) noexcept {
    return const_cast<TokenStyle*>(std::as_const(*this).Find(tokenType));
}

FeatureStyles LoadTextEditingOptions(SettingsStore& store) {
    FeatureStyles styles;
    for (const TypeAndMember& row : Members)
        styles.*row.style = GetTokenStyle(store, row.tokenType).value_or(TokenStyle{});
    return styles;
}

void ApplyTextEditingOptions(SettingsStore& store, const FeatureStyles& styles,
                             const std::function<void()>& updateColorCoding) {
    for (const int type : StoredTypes) {
        SaveTokenStyle(store, type, *styles.Find(type));
        updateColorCoding();
    }
}

}  // namespace tintora
