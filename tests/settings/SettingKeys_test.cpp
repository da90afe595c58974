#include "settings/SettingKeys.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <utility>

namespace tintora {
namespace {

struct KeyCase {
    SettingKey key;
    TextView section;
    TextView name;
    TextView defaultValue;
};

constexpr auto KeyCases = std::to_array<KeyCase>({
    {setting::MainLeft, u"Settings", u"MainLeft", u"1000"},
    {setting::MainTop, u"Settings", u"MainTop", u"1000"},
    {setting::MainWidth, u"Settings", u"MainWidth", u"6500"},
    {setting::MainHeight, u"Settings", u"MainHeight", u"6500"},
    {setting::Maximized, u"Settings", u"Maximized", u"True"},
    {setting::SetupWizardCompleted, u"Options", u"SetupWizardCompleted", u"False"},
    {setting::AskToMakeDefaultCSSEditor, u"Options", u"AskToMakeDefaultCSSEditor", u"True"},
    {setting::PreferredUnits, u"Editing", u"PreferredUnits", u"em"},
    {setting::AutoSelectEditors, u"Editors", u"AutoSelectEditors", u"1"},
    {setting::TextEditorFont, u"TextEditing", u"TextEditorFont", u"Courier New"},
    {setting::TypeAhead, u"TextEditing", u"TypeAhead", u"True"},
    {setting::UseShorthands, u"TextEditing", u"UseShorthands", u"False"},
    {setting::StatementSeparator, u"Formatting", u"StatementSeparator", u""},
    {setting::SelectorDeclarationSeparator, u"Formatting", u"SelectorDeclarationSeparator", u""},
    {setting::FirstPropertySeparator, u"Formatting", u"FirstPropertySeparator", u""},
    {setting::PropertySeparator, u"Formatting", u"PropertySeparator", u""},
    {setting::LastPropertySeparator, u"Formatting", u"LastPropertySeparator", u""},
    {setting::TheTargettedBrowsers, u"BrowserSupport", u"TheTargettedBrowsers", u""},
    {setting::LivePreviewOn, u"Preview", u"LivePreviewOn", u"True"},
    {setting::AllPreviewBrowsers, u"Preview", u"AllPreviewBrowsers", u""},
    {setting::IELocation, u"Preview", u"IELocation", u""},
    {setting::NetscapeLocation, u"Preview", u"NetscapeLocation", u""},
    {setting::MozillaLocation, u"Preview", u"MozillaLocation", u""},
    {setting::OperaLocation, u"Preview", u"OperaLocation", u""},
    {setting::AllPreviewFiles, u"Preview", u"AllPreviewFiles", u""},
    {setting::PreviewFile, u"Preview", u"PreviewFile", u""},
    {setting::LastPreviewHTMLFile, u"Preview", u"LastPreviewHTMLFile", u""},
    {setting::LastPreviewCSSFile, u"Preview", u"LastPreviewCSSFile", u""},
    {setting::LastCurrentRulePreviewFile, u"Preview", u"LastCurrentRulePreviewFile", u""},
    {setting::FilesToDelete, u"Preview", u"FilesToDelete", u""},
    {setting::RecentFiles, u"Recent", u"Files", u""},
    {setting::OpenMe, u"Temp", u"OpenMe", u""},
});

TEST(SettingKeys, EveryKeyHasItsSectionNameAndDefault) {
    for (const KeyCase& row : KeyCases) {
        SCOPED_TRACE(Utf8FromText(row.name));
        EXPECT_EQ(row.key.section, row.section);
        EXPECT_EQ(row.key.key, row.name);
        EXPECT_EQ(row.key.defaultValue, row.defaultValue);
    }
}

TEST(SettingKeys, NoTwoKeysHaveOneAddress) {
    std::set<std::pair<TextView, TextView>> addresses;
    for (const KeyCase& row : KeyCases)
        EXPECT_TRUE(addresses.emplace(row.key.section, row.key.key).second) << Utf8FromText(row.name);
}

TEST(SettingKeys, TheApplicationIsTheTitle) { EXPECT_EQ(ApplicationTitle, u"Tintora 3.5"); }

}  // namespace
}  // namespace tintora
