#include "editor/TokenStyles.h"

#include "EditorRecorders.h"
#include "settings/SettingKeys.h"

#include <array>
#include <limits>

namespace tintora::test {
namespace {

constexpr std::int32_t Rgb(int red, int green, int blue) { return red + green * 0x100 + blue * 0x10000; }

struct DefaultCase {
    int type;
    TokenStyle style;
};

constexpr auto DefaultCases = std::to_array<DefaultCase>({
    {24, {Rgb(128, 91, 168), -1, 0, 1}},
    {25, {Rgb(128, 91, 168), -1, 0, 1}},
    {19, {Rgb(101, 137, 158), -1, 0, 0}},
    {20, {Rgb(0, 0, 0), Rgb(255, 0, 0), 1, 0}},
    {21, {Rgb(118, 180, 209), -1, 0, 1}},
    {27, {Rgb(0, 0, 0), Rgb(255, 0, 0), 1, 0}},
    {23, {Rgb(255, 0, 0), -1, 0, 1}},
    {17, {Rgb(0, 0, 0), -1, 0, 1}},
    {6, {Rgb(192, 192, 192), -1, 0, 1}},
    {26, {Rgb(0, 255, 0), -1, 0, 1}},
    {2, {Rgb(0, 0, 0), -1, 0, 1}},
    {32, {Rgb(0, 0, 0), -1, 0, 1}},
    {28, {Rgb(255, 128, 64), -1, 0, 0}},
});

struct StoredCase {
    Text stored;
    TokenStyle style;
};

const TokenStyle OfValues = {Rgb(118, 180, 209), -1, 0, 1};

/// What is read for type 21.
const std::vector<StoredCase> StoredCases = {
    {u" 0/-1/ 0/ 1", {0, -1, 0, 1}},
    {u" 255/ 65280/ 1/ 1", {255, 65280, 1, 1}},
    {u"255/65280/1/0", {255, 65280, 1, 0}},
    {u"-1/-1/ 0/ 0", {-1, -1, 0, 0}},
    {u" 16777215/ 16777215/-1/-1", {16777215, 16777215, -1, -1}},

    // Anything but four parts is none.
    {u"", OfValues},
    {u" 1", OfValues},
    {u" 1/ 2/ 3", OfValues},
    {u" 1/ 2/ 3/ 4/ 5", OfValues},
    {u"1^^^2^^^3^^^4", OfValues},
    {u"red", OfValues},

    // In four parts what is no number is 0, and what follows a number doesn't count.
    {u"red/blue/yes/no", {0, 0, 0, 0}},
    {u" 12px/ 0/ 1 /true", {12, 0, 1, 0}},
    {u" / / / ", {0, 0, 0, 0}},
    {u" 1/ 2/ 3/", {1, 2, 3, 0}},
    {u" 99999999999/-99999999999/ 0/ 0",
     {std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min(), 0, 0}},
};

const std::string StylesInOrder =
    "scanner, "
    "24 text 11033472, 24 back own 0, 24 font 1, "
    "19 text 10389861, 19 back own 0, 19 font 0, "
    "20 text 0, 20 back 255, 20 font 2, "
    "17 text 0, 17 back own 0, 17 font 1, "
    "23 text 255, 23 back own 0, 23 font 1, "
    "21 text 13743222, 21 back own 0, 21 font 1, "
    "2 text 0, 2 back own 0, 2 font 1, "
    "6 text 12632256, 6 back own 0, 6 font 1, "
    "25 text 11033472, 25 back own 0, 25 font 1, "
    "26 text 65280, 26 back own 0, 26 font 1, "
    "27 text 0, 27 back 255, 27 font 2, "
    "28 text 4227327, 28 back own 0, 28 font 0, "
    "32 text 0, 32 back own 0, 32 font 1";

class TokenStylesTest : public ::testing::Test {
  protected:
    void Store(TextView key, TextView value) { store_.SaveSetting(ApplicationTitle, u"TextEditing", key, value); }
    [[nodiscard]] Text Stored(TextView key) const {
        return store_.GetSetting(ApplicationTitle, u"TextEditing", key, u"nothing");
    }

    MemorySettingsStore store_;
};

TEST_F(TokenStylesTest, EachTypeHasItsDefault) {
    for (const DefaultCase& row : DefaultCases) {
        SCOPED_TRACE(row.type);
        EXPECT_EQ(GetDefaultTokenStyle(row.type), row.style);
        EXPECT_EQ(GetTokenStyle(store_, row.type), row.style);
    }
    EXPECT_EQ(store_.Size(), 0U) << "reading stores nothing";
}

TEST_F(TokenStylesTest, AnyOtherTypeHasNone) {
    for (int type = -1; type <= 300; ++type) {
        const bool isStyled =
            std::ranges::any_of(DefaultCases, [=](const DefaultCase& row) { return row.type == type; });
        EXPECT_EQ(GetDefaultTokenStyle(type).has_value(), isStyled) << type;
        EXPECT_EQ(GetTokenStyle(store_, type).has_value(), isStyled) << type;
    }
}

TEST_F(TokenStylesTest, AStoredStyleIsReadAsTheCasesSay) {
    for (const StoredCase& row : StoredCases) {
        SCOPED_TRACE(Utf8FromText(row.stored));
        Store(u" 21", row.stored);
        EXPECT_EQ(GetTokenStyle(store_, 21), row.style);
    }
}

TEST_F(TokenStylesTest, ATypeWithoutADefaultHasWhatIsStoredForIt) {
    Store(u" 5", u" 1/ 2/ 3/ 4");
    EXPECT_EQ(GetTokenStyle(store_, 5), (TokenStyle{1, 2, 3, 4}));
    Store(u" 5", u" 1/ 2/ 3");
    EXPECT_EQ(GetTokenStyle(store_, 5), std::nullopt);
}

TEST_F(TokenStylesTest, AStyleIsStoredUnderItsTypeWithABlankInFrontOfWhatIsNotNegative) {
    SaveTokenStyle(store_, 24, {0, -1, 0, 1});
    EXPECT_EQ(Stored(u" 24"), u" 0/-1/ 0/ 1");
    EXPECT_EQ(Stored(u"24"), u"nothing");
    SaveTokenStyle(store_, 6, {Rgb(255, 255, 255), Rgb(1, 2, 3), 1, 0});
    EXPECT_EQ(Stored(u" 6"), u" 16777215/ 197121/ 1/ 0");
    EXPECT_EQ(store_.Size(), 2U);
}

TEST_F(TokenStylesTest, AStoredStyleComesBack) {
    int number = 0;
    for (const DefaultCase& row : DefaultCases) {
        ++number;
        const TokenStyle style = {number, number % 2 == 0 ? -1 : 1000 * number, number % 2, number % 3 == 0 ? 1 : 0};
        SaveTokenStyle(store_, row.type, style);
        EXPECT_EQ(GetTokenStyle(store_, row.type), style);
        EXPECT_EQ(GetDefaultTokenStyle(row.type), row.style);
        SaveTokenStyle(store_, row.type, row.style);
        EXPECT_EQ(GetTokenStyle(store_, row.type), row.style);
    }
}

TEST_F(TokenStylesTest, TypesThatShareADefaultAreStoredApart) {
    SaveTokenStyle(store_, 20, {1, 2, 0, 0});
    EXPECT_EQ(GetTokenStyle(store_, 20), (TokenStyle{1, 2, 0, 0}));
    EXPECT_EQ(GetTokenStyle(store_, 27), GetDefaultTokenStyle(27));
    EXPECT_EQ(GetDefaultTokenStyle(27), GetDefaultTokenStyle(20));
}

TEST_F(EditorTest, ANewEditorGivesTheControlAScannerAndThenItsStylesInTheirOrder) {
    EXPECT_EQ(view_.styles.log.Take(), StylesInOrder);
}

TEST_F(EditorTest, ColoursAreSetUpAnewAndRecolouredAfterwards) {
    view_.styles.log.Forget();
    RecordControl();
    editor_.SetupColorCoding();
    EXPECT_EQ(view_.styles.log.Take(), StylesInOrder);
    EXPECT_EQ(log_.Take(), "SetLex");
    editor_.UpdateColorCoding();
    EXPECT_EQ(view_.styles.log.Take(), StylesInOrder);
    EXPECT_EQ(log_.Take(), "SetLex, Recolor");
}

TEST_F(EditorTest, AStoredStyleIsGivenToTheControl) {
    SaveTokenStyle(settings_, 21, {Rgb(1, 2, 3), Rgb(4, 5, 6), 1, 1});
    view_.styles.log.Forget();
    editor_.SetupTokenStyle(21);
    EXPECT_EQ(view_.styles.log.Take(), "21 text 197121, 21 back 394500, 21 font 3");
    SaveTokenStyle(settings_, 21, {-1, -1, 0, 0});
    editor_.SetupTokenStyle(21);
    EXPECT_EQ(view_.styles.log.Take(), "21 text own 0, 21 back own 0, 21 font 0");
    SaveTokenStyle(settings_, 21, {0, 0, -1, 0});
    editor_.SetupTokenStyle(21);
    EXPECT_EQ(view_.styles.log.Take(), "21 text 0, 21 back 0, 21 font 2");
    SaveTokenStyle(settings_, 21, {0, 0, 0, 7});
    editor_.SetupTokenStyle(21);
    EXPECT_EQ(view_.styles.log.Take(), "21 text 0, 21 back 0, 21 font 1");
}

TEST_F(EditorTest, ATypeWithoutAStyleIsLeftToTheControl) {
    view_.styles.log.Forget();
    for (const int type : {0, 1, 5, 22, 33, -1})
        editor_.SetupTokenStyle(type);
    EXPECT_EQ(view_.styles.log.Take(), "");
}

TEST_F(EditorTest, ANewScannerLeavesTheTokensAsTheyAre) {
    Load(u"a {color: red}");
    EXPECT_EQ(editor_.GetTokenType(4, 0), 19);
    editor_.UpdateColorCoding();
    EXPECT_EQ(editor_.GetTokenType(4, 0), 19);
    EXPECT_EQ(editor_.GetText(), u"a {color: red}");
}

}  // namespace
}  // namespace tintora::test
