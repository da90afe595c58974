#include "document/FormattingSample.h"

#include "editor/SourceView.h"
#include "settings/MemorySettingsStore.h"
#include "settings/SettingKeys.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace tintora {
namespace {

struct ReadCase {
    Text sample;
    SampleSeparators read;
};

constexpr auto None = std::nullopt;

/// A sample, and what is read from it: statement, property, selector, last, first.
const std::vector<ReadCase> ReadCases = {
    {u"body {a;\rb;}\r\r", {u"\r\r", u"\r", u" ", u"", u""}},
    {u"body{a;b;}", {u"", u"", u"", u"", u""}},
    {u"body\r{\r\ta;\r\tb;\r}\r\r\r", {u"\r\r\r", u"\r\t", u"\r", u"\r", u"\r\t"}},
    {u"body \t\f{ \t\fa; \t\fb; \t\f} \t\f", {u" \t\f", u" \t\f", u" \t\f", u" \t\f", u" \t\f"}},

    // Line ends are stored as carriage returns.
    {u"body\n{\r\na;\r\n\nb;\n\r}\n\n", {u"\r\r", u"\r\r", u"\r", u"\r\r", u"\r"}},

    // White space at the start of the sample, and in front of a ";", belongs to no separator.
    {u" \r body {a ;b ;} ", {u" ", u"", u" ", u"", u""}},

    // Only the first of each mark counts.
    {u"a {\t{ ;\r; } }\t", {u" ", u"\r", u" ", u" ", u"\t"}},

    // What isn't there hangs on nothing.
    {u"", {None, None, None, None, None}},
    {u" \r ", {None, None, None, None, None}},
    {u"body \r", {None, None, None, None, None}},
    {u"body { ", {None, None, u" ", None, u" "}},
    {u"body ;\t", {None, u"\t", None, None, None}},
    {u"\r} ", {u" ", None, None, u"\r", None}},
    {u"{", {None, None, u"", None, u""}},
    {u"{}", {u"", None, u"", u"", u""}},
    {u"{ }", {u"", None, u"", u" ", u" "}},

    // White space are the five units and no others.
    {u"body\xA0{\v;\x2003}\x85", {u"", u"", u"", u"", u""}},
    {u"body\xD800 {", {None, None, u" ", None, u""}},
};

struct KeyCase {
    /// The caret is "|"; an anchor elsewhere is "^".
    TextView sample;
    /// Whether Return, Space and Tab act, Delete, and Backspace.
    bool white;
    bool deletes;
    bool backspace;
};

const std::vector<KeyCase> KeyCases = {
    {u"body| {a;}", true, true, false},
    {u"body |{a;}", true, false, true},
    {u"body | {a;}", true, true, true},
    {u"bo|dy {a;}", false, false, false},
    {u"body {|a;}", false, false, false},
    {u"body {a|;}", false, false, false},
    {u"body {a;|}", false, false, false},
    {u"body|\t{a;}", true, true, false},
    {u"body\f|{a;}", true, false, true},

    // The start and the end of a line count as white space, and so do those of the text.
    {u"|body {a;}", true, false, true},
    {u"body {a;}|", true, true, false},
    {u"|", true, true, true},
    {u"body {a;|\rb;}", true, true, false},
    {u"body {a;\r|b;}", true, false, true},
    {u"body {a;\n|b;}", true, false, true},
    {u"body {a;|\r\nb;}", true, true, false},
    {u"body {a;\r|\nb;}", true, true, true},
    {u"body {a;\r|\rb;}", true, true, true},

    // The five units and no others.
    {u"body|\xA0{", false, false, false},
    {u"body\v|{", false, false, false},

    // While something is selected nothing acts.
    {u"body^ | {a;}", false, false, false},
    {u"body| ^ {a;}", false, false, false},
    {u"^body {a;}|", false, false, false},
    {u"^\r|", false, false, false},
};

/// Keys that never act: those that could change more than white space, or that the filter doesn't know.
constexpr auto OtherKeys =
    std::to_array({0, 1, 17, 27, 33, 34, 35, 36, 41, 45, 47, 65, 66, 90, 112, 186, 221, -1, 1000});

struct PlacedKeys {
    Text sample;
    SampleSelection selection;
};

PlacedKeys Place(TextView marked) {
    PlacedKeys placed;
    std::optional<int> anchor;
    for (const char16_t unit : marked) {
        const int offset = static_cast<int>(placed.sample.size());
        if (unit == u'|')
            placed.selection.caret = offset;
        else if (unit == u'^')
            anchor = offset;
        else
            placed.sample.push_back(unit);
    }
    placed.selection.anchor = anchor.value_or(placed.selection.caret);
    return placed;
}

class FormattingSampleTest : public testing::Test {
  protected:
    [[nodiscard]] Text Stored(const SettingKey& key) const {
        return store.GetSetting(ApplicationTitle, key.section, key.key, u"nothing");
    }

    MemorySettingsStore store;
};

TEST_F(FormattingSampleTest, WithoutSettingsTheSampleShowsTheDefaults) {
    EXPECT_EQ(LoadFormattingOptions(store), u"body {font-weight: bold;\rtext-decoration: underline;}\r\r");
    EXPECT_EQ(store.Size(), 0U);
}

TEST_F(FormattingSampleTest, EachSeparatorStandsAtItsPlace) {
    EXPECT_EQ(FormattingSampleText({u"1", u"2", u"3", u"4", u"5"}),
              u"body3{5font-weight: bold;2text-decoration: underline;4}1");
}

TEST_F(FormattingSampleTest, TheSeparatorsAreReadAsTheCasesSay) {
    for (const ReadCase& row : ReadCases)
        EXPECT_EQ(ReadFormattingSample(row.sample), row.read) << Utf8FromText(row.sample);
}

TEST_F(FormattingSampleTest, AVeryLongSampleIsReadAllTheSame) {
    const Text blanks(100'000, u' ');
    const SampleSeparators read = ReadFormattingSample(u"body" + blanks + u"{a;}" + blanks);
    EXPECT_EQ(read.selectorDeclaration, blanks);
    EXPECT_EQ(read.statement, blanks);
}

TEST_F(FormattingSampleTest, WhatIsStoredComesBackInTheSample) {
    const Text sample = u"body\r{\r\tfont-weight: bold;\r\ttext-decoration: underline;\r}\r\r\r";
    ApplyFormattingOptions(store, sample);
    EXPECT_EQ(Stored(setting::StatementSeparator), u"\r\r\r");
    EXPECT_EQ(Stored(setting::PropertySeparator), u"\r\t");
    EXPECT_EQ(Stored(setting::SelectorDeclarationSeparator), u"\r");
    EXPECT_EQ(Stored(setting::LastPropertySeparator), u"\r");
    EXPECT_EQ(Stored(setting::FirstPropertySeparator), u"\r\t");
    EXPECT_EQ(LoadFormattingOptions(store), sample);
}

TEST_F(FormattingSampleTest, AnEmptySeparatorComesBackAsItsDefault) {
    ApplyFormattingOptions(store, u"body{font-weight: bold;text-decoration: underline;}");
    EXPECT_EQ(store.Size(), 5U);
    EXPECT_EQ(Stored(setting::StatementSeparator), u"");
    EXPECT_EQ(LoadFormattingOptions(store), u"body {font-weight: bold;\rtext-decoration: underline;}\r\r");
}

TEST_F(FormattingSampleTest, WhatTheSampleDoesNotShowStaysStored) {
    SetStatementSeparator(store, u"1");
    SetPropertySeparator(store, u"2");
    SetSelectorDeclarationSeparator(store, u"3");
    SetLastPropertySeparator(store, u"4");
    SetFirstPropertySeparator(store, u"5");
    ApplyFormattingOptions(store, u"body");
    EXPECT_EQ(FormattingSampleText(ReadSeparators(store)), FormattingSampleText({u"1", u"2", u"3", u"4", u"5"}));
    ApplyFormattingOptions(store, u"body\t{ ");
    EXPECT_EQ(FormattingSampleText(ReadSeparators(store)), FormattingSampleText({u"1", u"2", u"\t", u"4", u" "}));
    ApplyFormattingOptions(store, u";\r\r");
    EXPECT_EQ(FormattingSampleText(ReadSeparators(store)), FormattingSampleText({u"1", u"\r\r", u"\t", u"4", u" "}));
}

TEST_F(FormattingSampleTest, TheKeysForWhiteSpaceActBesideIt) {
    for (const KeyCase& row : KeyCases) {
        SCOPED_TRACE(Utf8FromText(row.sample));
        const auto [sample, selection] = Place(row.sample);
        const auto mayAct = [&](int code) { return MayKeyActInSample(sample, selection, code, 0); };
        for (const int code : {sample_key::Return, sample_key::Tab, key_code::Space})
            EXPECT_EQ(mayAct(code), row.white) << code;
        EXPECT_EQ(mayAct(key_code::Delete), row.deletes);
        EXPECT_EQ(mayAct(key_code::Backspace), row.backspace);
    }
}

TEST_F(FormattingSampleTest, TheArrowKeysActWhereNothingIsSelectedAndNoOtherKeyDoes) {
    for (const KeyCase& row : KeyCases) {
        SCOPED_TRACE(Utf8FromText(row.sample));
        const auto [sample, selection] = Place(row.sample);
        const bool isPlain = selection.anchor == selection.caret;
        for (int code = 37; code <= 40; ++code) {
            for (int shift = 0; shift < 8; ++shift)
                EXPECT_EQ(MayKeyActInSample(sample, selection, code, shift), isPlain) << code << ' ' << shift;
        }
        for (const int code : OtherKeys)
            EXPECT_FALSE(MayKeyActInSample(sample, selection, code, 0)) << code;
    }
}

TEST_F(FormattingSampleTest, KeysThatMeanWordsAndLinesDoNotAct) {
    for (const int code :
         {sample_key::Return, sample_key::Tab, key_code::Space, key_code::Delete, key_code::Backspace}) {
        const auto mayAct = [&](int shift) { return MayKeyActInSample(u"body   {", {5, 5}, code, shift); };
        EXPECT_TRUE(mayAct(0));
        EXPECT_TRUE(mayAct(shift_state::Shift));
        EXPECT_FALSE(mayAct(shift_state::Control));
        EXPECT_FALSE(mayAct(shift_state::Alt));
        EXPECT_FALSE(mayAct(shift_state::Control + shift_state::Shift));
    }
}

TEST_F(FormattingSampleTest, ACaretOutsideOfTheTextStandsBesideWhiteSpace) {
    for (const int caret : {-5, 100}) {
        EXPECT_TRUE(MayKeyActInSample(u"body", {caret, caret}, key_code::Space, 0));
        EXPECT_TRUE(MayKeyActInSample(u"body", {caret, caret}, key_code::Delete, 0));
    }
}

}  // namespace
}  // namespace tintora
