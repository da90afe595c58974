#include "editor/FeatureStyles.h"

#include "settings/MemorySettingsStore.h"
#include "settings/Settings.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <vector>

namespace tintora {
namespace {

struct FeatureCase {
    TextView name;
    int type;
    TokenStyle FeatureStyles::*style;
};

/// In the order of the list.
const std::vector<FeatureCase> FeatureCases = {
    {u"Selectors", 24, &FeatureStyles::SelectorTokenStyle},
    {u"Properties", 19, &FeatureStyles::PropertiesTokenStyle},
    {u"Unknown Properties", 20, &FeatureStyles::BadPropertiesTokenStyle},
    {u"Values", 21, &FeatureStyles::ValueTokenStyle},
    {u"Invalid Values", 27, &FeatureStyles::InvalidValueTokenStyle},
    {u"{ and }", 23, &FeatureStyles::DeclarationDelimitersTokenStyle},
    {u": and ;", 17, &FeatureStyles::PunctuationTokenStyle},
    {u"Comments", 6, &FeatureStyles::CommentTokenStyle},
    {u"!important", 26, &FeatureStyles::ImportantTokenStyle},
    {u"@media", 25, &FeatureStyles::AtMediaTokenStyle},
};

const std::vector<int> TypesAsStored = {24, 19, 20, 21, 27, 23, 17, 6, 25, 26};

class FeatureStylesTest : public testing::Test {
  protected:
    MemorySettingsStore store;
};

TEST_F(FeatureStylesTest, TheTenFeaturesAreOfferedInTheirOrder) {
    ASSERT_EQ(LanguageFeatures.size(), FeatureCases.size());
    for (std::size_t index = 0; index < FeatureCases.size(); ++index) {
        EXPECT_EQ(LanguageFeatures.at(index).name, FeatureCases[index].name);
        EXPECT_EQ(LanguageFeatures.at(index).tokenType, FeatureCases[index].type);
    }
}

TEST_F(FeatureStylesTest, EachTypeHasItsOwnLook) {
    FeatureStyles styles;
    for (const FeatureCase& row : FeatureCases)
        EXPECT_EQ(styles.Find(row.type), &(styles.*row.style)) << Utf8FromText(row.name);
    EXPECT_EQ(styles.Find(2), &styles.SymbolTokenStyle);
    for (const int type : {-1, 0, 1, 5, 18, 22, 28, 32})
        EXPECT_EQ(styles.Find(type), nullptr) << type;
}

TEST_F(FeatureStylesTest, AFreshStoreGivesTheDefaults) {
    const FeatureStyles styles = LoadTextEditingOptions(store);
    for (const FeatureCase& row : FeatureCases)
        EXPECT_EQ(styles.*row.style, GetDefaultTokenStyle(row.type)) << Utf8FromText(row.name);
    EXPECT_EQ(styles.SymbolTokenStyle, GetDefaultTokenStyle(2));
    EXPECT_EQ(store.Size(), 0U);
}

TEST_F(FeatureStylesTest, StoredLooksAreLoadedEachIntoItsOwn) {
    std::int32_t number = 0;
    for (const FeatureCase& row : FeatureCases) {
        ++number;
        SaveTokenStyle(store, row.type, {number, -1, number % 2, 1});
    }
    const FeatureStyles styles = LoadTextEditingOptions(store);
    number = 0;
    for (const FeatureCase& row : FeatureCases) {
        ++number;
        EXPECT_EQ(styles.*row.style, (TokenStyle{number, -1, number % 2, 1}));
    }
}

TEST_F(FeatureStylesTest, AStoredLookOfThreePartsGivesTheDefaultAndAGarbledOneOfFourNumbers) {
    Settings(store).SaveTokenStyleText(20, u" 1/ 2/ 3");
    Settings(store).SaveTokenStyleText(27, u"red/-1/yes/ 1");
    const FeatureStyles styles = LoadTextEditingOptions(store);
    EXPECT_EQ(styles.BadPropertiesTokenStyle, GetDefaultTokenStyle(20));
    EXPECT_EQ(styles.InvalidValueTokenStyle, (TokenStyle{0, -1, 0, 1}));
}

TEST_F(FeatureStylesTest, ApplyingStoresTheTenInTheirOrderAndRepaintsBehindEach) {
    FeatureStyles styles;
    for (const FeatureCase& row : FeatureCases)
        styles.*row.style = {row.type, -1, 0, 0};
    std::size_t repaints = 0;
    ApplyTextEditingOptions(store, styles, [&] {
        ++repaints;
        EXPECT_EQ(store.Size(), repaints) << "the look is stored when it is painted";
        const int type = TypesAsStored.at(repaints - 1);
        EXPECT_EQ(GetTokenStyle(store, type), (TokenStyle{type, -1, 0, 0})) << type;
    });
    EXPECT_EQ(repaints, TypesAsStored.size());
    EXPECT_EQ(Settings(store).GetTokenStyleText(2), u"") << "symbols aren't stored";
}

TEST_F(FeatureStylesTest, FeaturesThatShareTheirDefaultsAreChosenApart) {
    FeatureStyles styles = LoadTextEditingOptions(store);
    EXPECT_EQ(styles.BadPropertiesTokenStyle, styles.InvalidValueTokenStyle);
    styles.BadPropertiesTokenStyle.textColor = 5;
    ApplyTextEditingOptions(store, styles, [] {});
    EXPECT_EQ(LoadTextEditingOptions(store), styles);
    EXPECT_EQ(GetTokenStyle(store, 27), GetDefaultTokenStyle(27));
}

}  // namespace
}  // namespace tintora
