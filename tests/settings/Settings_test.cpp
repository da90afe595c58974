#include "settings/Settings.h"

#include "settings/MemorySettingsStore.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct TruthCase {
    SettingKey key;
    bool (Settings::*get)() const;
    void (Settings::*set)(bool);
    bool defaultValue;
};

constexpr auto TruthCases = std::to_array<TruthCase>({
    {setting::SetupWizardCompleted, &Settings::GetSetupWizardCompleted, &Settings::SetSetupWizardCompleted, false},
    {setting::AskToMakeDefaultCSSEditor, &Settings::GetAskToMakeDefaultCSSEditor,
     &Settings::SetAskToMakeDefaultCSSEditor, true},
    {setting::TypeAhead, &Settings::GetTypeAhead, &Settings::SetTypeAhead, true},
    {setting::UseShorthands, &Settings::GetUseShorthands, &Settings::SetUseShorthands, false},
    {setting::LivePreviewOn, &Settings::GetLivePreviewOn, &Settings::SetLivePreviewOn, true},
    {setting::Maximized, &Settings::GetMaximized, &Settings::SaveMaximized, true},
});

/// Everything but exactly "True" is false.
constexpr auto TextsThatAreNotTrue = std::to_array<TextView>({
    u"",
    u"False",
    u"true",
    u"TRUE",
    u"True ",
    u" True",
    u"Truee",
    u"Tru",
    u"1",
    u"-1",
    u"Yes",
    u"on",
    u"True\0"sv,
    u"\xD800",
    u"nonsense",
});

constexpr auto MaximizedTexts = std::to_array<TextView>({
    u"True",
    u"true",
    u"TRUE",
    u"tRuE",
    u"1",
    u"-1",
    u"2",
    u"0.5",
    u"-0.1",
    u"1e3",
    u"+7",
});

constexpr auto NotMaximizedTexts = std::to_array<TextView>({
    u"False",
    u"false",
    u"FALSE",
    u"fAlSe",
    u"0",
    u"-0",
    u"+0",
    u"0.0",
    u".0",
    u"0e5",
    u"000",
});

/// Texts that are neither a number nor, for the truth value, one of its words.
constexpr auto MalformedTexts = std::to_array<TextView>({
    u"",      u" ",  u"yes", u"on",   u"True ", u" False", u"Truee",      u"1 ",    u" 1",   u"1x",     u"1,5",
    u"1.2.3", u"1e", u"--1", u"0x10", u"nan",   u"inf",    u"6500 twips", u"1\0"sv, u"\0"sv, u"\xD800", u"\xFF11",
});

constexpr auto MalformedPlaceTexts = std::to_array<TextView>({u"True", u"False"});

struct PlaceText {
    float number;
    TextView text;
};

constexpr auto PlaceTexts = std::to_array<PlaceText>({
    {0.0F, u"0"},
    {-0.0F, u"0"},
    {1000.0F, u"1000"},
    {-120.0F, u"-120"},
    {0.5F, u"0.5"},
    {-1440.25F, u"-1440.25"},
    {16777216.0F, u"16777216"},
});

struct StoredNumber {
    TextView text;
    int number;
};

constexpr auto StoredNumbers = std::to_array<StoredNumber>({
    {u"1", 1},
    {u"0", 0},
    {u"-1", -1},
    {u" 1", 1},
    {u"12", 12},
    {u"1 and more", 1},
    {u"", 0},
    {u"True", 0},
    {u"x1", 0},
    {u"\xD800", 0},
    {u"2147483647", 2147483647},
    {u"-2147483648", std::numeric_limits<int>::min()},
});

const std::array PlaceKeys = {setting::MainLeft, setting::MainTop, setting::MainWidth, setting::MainHeight};

class SettingsTest : public testing::Test {
  protected:
    void Store(const SettingKey& key, TextView value) {
        store_.SaveSetting(ApplicationTitle, key.section, key.key, value);
    }

    [[nodiscard]] Text Stored(const SettingKey& key) const {
        return store_.GetSetting(ApplicationTitle, key.section, key.key, u"(missing)");
    }

    MemorySettingsStore store_;
    Settings settings_{store_};
};

TEST_F(SettingsTest, AFreshStoreGivesTheDefaults) {
    for (const TruthCase& row : TruthCases)
        EXPECT_EQ((settings_.*row.get)(), row.defaultValue) << Utf8FromText(row.key.key);
    EXPECT_EQ(settings_.GetTextEditorFont(), u"Courier New");
    EXPECT_EQ(settings_.GetPreferredUnits(), u"em");
    EXPECT_EQ(settings_.GetAutoSelectEditors(), 1);
    EXPECT_EQ(settings_.GetWindowPlace(), (WindowPlace{1000, 1000, 6500, 6500}));
    EXPECT_EQ(settings_.GetTokenStyleText(0), u"");
    EXPECT_EQ(settings_.Get(setting::PreviewFile), u"");
    EXPECT_EQ(settings_.Get(setting::MainWidth), u"6500");
}

TEST_F(SettingsTest, AReadNeverWrites) {
    for (const TruthCase& row : TruthCases)
        static_cast<void>((settings_.*row.get)());
    static_cast<void>(settings_.GetWindowPlace());
    static_cast<void>(settings_.GetAutoSelectEditors());
    static_cast<void>(settings_.GetTokenStyleText(3));
    static_cast<void>(settings_.Get(setting::OpenMe));
    EXPECT_EQ(store_.Size(), 0U);
}

TEST_F(SettingsTest, ATruthValueIsStoredAsAWordUnderItsKey) {
    for (const TruthCase& row : TruthCases) {
        SCOPED_TRACE(Utf8FromText(row.key.key));
        for (const bool value : {true, false, true}) {
            (settings_.*row.set)(value);
            EXPECT_EQ(Stored(row.key), value ? u"True" : u"False");
            EXPECT_EQ((settings_.*row.get)(), value);
        }
    }
    EXPECT_EQ(store_.Size(), TruthCases.size());
}

TEST_F(SettingsTest, OnlyTheExactWordIsTrue) {
    for (const TruthCase& row : TruthCases) {
        if (row.key.key == setting::Maximized.key)
            continue;
        for (const TextView text : TextsThatAreNotTrue) {
            Store(row.key, text);
            EXPECT_FALSE((settings_.*row.get)()) << Utf8FromText(row.key.key) << ": " << Utf8FromText(text);
        }
    }
}

TEST_F(SettingsTest, WhetherTheWindowIsMaximisedIsConverted) {
    for (const TextView text : MaximizedTexts) {
        Store(setting::Maximized, text);
        EXPECT_TRUE(settings_.GetMaximized()) << Utf8FromText(text);
    }
    for (const TextView text : NotMaximizedTexts) {
        Store(setting::Maximized, text);
        EXPECT_FALSE(settings_.GetMaximized()) << Utf8FromText(text);
    }
}

TEST_F(SettingsTest, WhatCannotBeConvertedFails) {
    for (const TextView text : MalformedTexts) {
        SCOPED_TRACE(Utf8FromText(text));
        Store(setting::Maximized, text);
        EXPECT_THROW(static_cast<void>(settings_.GetMaximized()), MalformedSettingFailure);
    }
}

TEST_F(SettingsTest, AMalformedNumberOfThePlaceFails) {
    for (const SettingKey& key : PlaceKeys) {
        SCOPED_TRACE(Utf8FromText(key.key));
        for (const TextView text : MalformedTexts) {
            Store(key, text);
            EXPECT_THROW(static_cast<void>(settings_.GetWindowPlace()), MalformedSettingFailure) << Utf8FromText(text);
        }
        for (const TextView text : MalformedPlaceTexts) {
            Store(key, text);
            EXPECT_THROW(static_cast<void>(settings_.GetWindowPlace()), MalformedSettingFailure) << Utf8FromText(text);
        }
        Store(key, u"1");
        EXPECT_NO_THROW(static_cast<void>(settings_.GetWindowPlace()));
    }
}

TEST_F(SettingsTest, TheFailureNamesTheSetting) {
    Store(setting::MainTop, u"high up");
    try {
        static_cast<void>(settings_.GetWindowPlace());
        ADD_FAILURE() << "no failure";
    } catch (const MalformedSettingFailure& failure) {
        EXPECT_NE(std::string(failure.what()).find("MainTop"), std::string::npos);
    }
}

TEST_F(SettingsTest, ThePlaceIsStoredInDecimalWithoutABlank) {
    for (const PlaceText& row : PlaceTexts) {
        SCOPED_TRACE(Utf8FromText(row.text));
        settings_.SaveWindowPlace({row.number, 1, row.number, 2});
        EXPECT_EQ(Stored(setting::MainLeft), row.text);
        EXPECT_EQ(Stored(setting::MainTop), u"1");
        EXPECT_EQ(Stored(setting::MainWidth), row.text);
        EXPECT_EQ(Stored(setting::MainHeight), u"2");
        EXPECT_EQ(settings_.GetWindowPlace(), (WindowPlace{row.number, 1, row.number, 2}));
    }
    EXPECT_EQ(store_.Size(), PlaceKeys.size());
}

TEST_F(SettingsTest, AnyPlaceComesBackFromTheStore) {
    std::mt19937 random(1440);
    std::uniform_real_distribution<float> numbers(-100000, 100000);
    for (int round = 0; round < 1000; ++round) {
        const WindowPlace place{numbers(random), numbers(random), numbers(random), numbers(random)};
        settings_.SaveWindowPlace(place);
        ASSERT_EQ(settings_.GetWindowPlace(), place);
    }
    const WindowPlace extremes{std::numeric_limits<float>::lowest(), std::numeric_limits<float>::max(),
                               std::numeric_limits<float>::min(), std::numeric_limits<float>::denorm_min()};
    settings_.SaveWindowPlace(extremes);
    EXPECT_EQ(settings_.GetWindowPlace(), extremes);
}

TEST_F(SettingsTest, TheStateOfTheEditorsIsTheNumberInFront) {
    for (const StoredNumber& row : StoredNumbers) {
        Store(setting::AutoSelectEditors, row.text);
        EXPECT_EQ(settings_.GetAutoSelectEditors(), row.number) << Utf8FromText(row.text);
    }
}

TEST_F(SettingsTest, ANumberBeyondAllIntegersIsSurvived) {
    for (const TextView text : {u"99999999999"sv, u"-99999999999"sv, u"1e300"sv, u"1e999"sv}) {
        Store(setting::AutoSelectEditors, text);
        EXPECT_NO_THROW(static_cast<void>(settings_.GetAutoSelectEditors())) << Utf8FromText(text);
    }
}

TEST_F(SettingsTest, AnIntegerIsStoredInDecimalWithoutABlank) {
    for (const int number : {0, 1, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        settings_.SaveAutoSelectEditors(number);
        EXPECT_EQ(Utf8FromText(Stored(setting::AutoSelectEditors)), std::to_string(number));
        EXPECT_EQ(settings_.GetAutoSelectEditors(), number);
    }
}

TEST_F(SettingsTest, TextsAreStoredAsTheyAre) {
    for (const TextView text : {u""sv, u"px"sv, u" % "sv, u"True"sv, u"\0"sv, u"\xD800"sv, u"^^^/\r\n"sv}) {
        settings_.SetPreferredUnits(text);
        EXPECT_EQ(settings_.GetPreferredUnits(), text);
        EXPECT_EQ(Stored(setting::PreferredUnits), text);
        settings_.Save(setting::AllPreviewFiles, text);
        EXPECT_EQ(settings_.Get(setting::AllPreviewFiles), text);
        Store(setting::TextEditorFont, text);
        EXPECT_EQ(settings_.GetTextEditorFont(), text);
    }
}

TEST_F(SettingsTest, TheStyleOfATokenTypeLiesUnderItsNumberWithABlank) {
    settings_.SaveTokenStyleText(5, u"0/255/Courier New");
    settings_.SaveTokenStyleText(12, u"twelve");
    settings_.SaveTokenStyleText(-1, u"minus one");
    EXPECT_EQ(settings_.GetTokenStyleText(5), u"0/255/Courier New");
    EXPECT_EQ(settings_.GetTokenStyleText(12), u"twelve");
    EXPECT_EQ(settings_.GetTokenStyleText(-1), u"minus one");
    EXPECT_EQ(settings_.GetTokenStyleText(1), u"");
    EXPECT_EQ(Stored({u"TextEditing", u" 5", u""}), u"0/255/Courier New");
    EXPECT_EQ(Stored({u"TextEditing", u" 12", u""}), u"twelve");
    EXPECT_EQ(Stored({u"TextEditing", u"-1", u""}), u"minus one");
}

TEST_F(SettingsTest, EachCallGoesToTheStore) {
    Settings other(store_);
    EXPECT_TRUE(settings_.GetTypeAhead());
    other.SetTypeAhead(false);
    EXPECT_FALSE(settings_.GetTypeAhead());
    Store(setting::TypeAhead, u"True");
    EXPECT_TRUE(settings_.GetTypeAhead());
    EXPECT_TRUE(other.GetTypeAhead());
}

TEST_F(SettingsTest, AnotherTitleStartsWithTheDefaults) {
    store_.SaveSetting(u"Tintora 4.0", u"TextEditing", u"TypeAhead", u"False");
    EXPECT_TRUE(settings_.GetTypeAhead());
}

}  // namespace
}  // namespace tintora
