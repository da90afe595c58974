// Where something may be offered, and what a choice writes there.

#include "editor/TypeAhead.h"

#include "MarkedText.h"
#include "text/Encoding.h"
#include "text/Whitespace.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <random>
#include <vector>

namespace tintora {

/// Failures of tests show what a list would be made for.
inline void PrintTo(const TypeAheadRequest& request, std::ostream* out) {
    *out << request.type << " [" << Utf8FromText(request.first) << "] [" << Utf8FromText(request.second) << "]";
}

namespace test {
namespace {

struct DelimiterCase {
    Text drawn;
    int before;
    int next;
};

/// A caret has the position of the character in front of it.
const std::vector<DelimiterCase> DelimiterCases = {
    {u"|a {b: c, d; e}", 0, 3},
    {u"a| {b: c, d; e}", 0, 3},
    {u"a |{b: c, d; e}", 0, 3},
    {u"a {|b: c, d; e}", 3, 3},
    {u"a {b|: c, d; e}", 3, 5},
    {u"a {b:| c, d; e}", 5, 5},
    {u"a {b: c|, d; e}", 5, 8},
    {u"a {b: c,| d; e}", 8, 8},
    {u"a {b: c, d|; e}", 8, 11},
    {u"a {b: c, d;| e}", 11, 11},
    {u"a {b: c, d; e|}", 11, 14},
    {u"a {b: c, d; e}|", 14, 14},
    {u"a {} b|", 4, 7},
    {u"abc|", 0, 4},
    {u"|", 0, 1},
    {u"a(b)[c]#d.e!f/|", 0, 15},
    {u"\uFF1A\uFF5B|", 0, 3},
};

struct BeyondCase {
    Text text;
    int position;
    int before;
    int next;
};

const std::vector<BeyondCase> BeyondCases = {
    {u"a {}", -1, 0, 3},
    {u"a {}", 5, 4, 5},
    {u"a {}", std::numeric_limits<int>::max(), 4, 5},
    {u"a {}", std::numeric_limits<int>::min(), 0, 3},
    {u"", -1, 0, 1},
    {u"", 7, 0, 1},
    {u"{", 0, 0, 1},
    {u"{", 1, 1, 1},
    {u"{", 2, 1, 2},
};

struct RequestCase {
    Text drawn;
    TypeAheadRequest request;
};

const std::vector<RequestCase> RequestCases = {
    // Names, behind "{" and ";".
    {u"a {|", {19, u"", u""}},
    {u"a {|}", {19, u"", u""}},
    {u"a { |}", {19, u"", u""}},
    {u"a {\n\tco|}", {19, u"co", u""}},
    {u"a {c|o}", {19, u"co", u""}},
    {u"a {|co}", {19, u"", u""}},
    {u"a {color: red;|}", {19, u"", u""}},
    {u"a {color: red;\r\n co|\r\n}", {19, u"co", u""}},
    {u"a {co|lor: red}", {19, u"color", u""}},
    {u"@import 'b.css'; h|", {19, u"h", u""}},
    {u"@media print {h|", {19, u"h", u""}},
    {u"{|", {19, u"", u""}},
    {u";x|", {19, u"x", u""}},

    // Where the rule isn't closed yet, what stands around the caret reaches to the next delimiter.
    {u"a {co|\nb {}", {19, u"co\nb", u""}},
    {u"a {|\nb {}", {19, u"", u""}},
    {u"a {co|", {19, u"co", u""}},

    // Values, behind ":".
    {u"a {color:|}", {21, u"color", u""}},
    {u"a {color: |}", {21, u"color", u""}},
    {u"a {color: r|}", {21, u"color", u"r"}},
    {u"a {color: r|ed; top: 0}", {21, u"color", u"red"}},
    {u"a {top: 0; COLOR :\n1px  s|}", {21, u"COLOR", u"1px  s"}},
    {u"a {:|}", {21, u"", u""}},
    {u":|", {21, u"", u""}},
    {u"color:r|", {21, u"color", u"r"}},
    {u"a:h| {}", {21, u"a", u"h"}},
    {u"a::b| {}", {21, u"", u"b"}},
    {u"a {b: c: d|}", {21, u"c", u"d"}},

    // Comments and strings are text like any other.
    {u"/* a; b| */", {19, u"b */", u""}},
    {u"a {background: url(http:/| )", {21, u"url(http", u"/ )"}},
};

const Texts NothingOffered = {u"|", u"abc|", u"h1, h|", u"h1,|", u"a {b: c, |d}", u"a {}|", u"a {} b|", u"}|", u"|{;:"};

struct KeyCase {
    Text characters;
    TypeAheadKey key;
};

const std::vector<KeyCase> KeyCases = {
    {u"{", TypeAheadKey::Starts},
    {u";:\b\x7F", TypeAheadKey::Stops},
    {u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ123456789\t\n\f\r ", TypeAheadKey::Restarts},
    // The digit 0 isn't among them.
    {u"0-_.,}()[]#!\"'/*@%+<>=~^$&\\`\x1B\v\u00A0\u00E9\u00C4\u0131\uFF41\xD800\xFFFF", TypeAheadKey::LeavesAlone},
};

struct EditCase {
    Text drawn;
    int type;
    Text choice;
    Text result;
};

/// With a line feed between declarations and a blank in front of a "}".
const std::vector<EditCase> EditCases = {
    // Names go to a line of their own, and everything between the delimiters goes.
    {u"a {|}", 19, u"color", u"a {\ncolor:|}"},
    {u"a { co| }", 19, u"color", u"a {\ncolor:|}"},
    {u"a {\n\tc|o\n}", 19, u"color", u"a {\ncolor:|}"},
    {u"a {top: 0; co|}", 19, u"color", u"a {top: 0;\ncolor:|}"},
    {u"a {top: 0; co|; left: 0}", 19, u"color", u"a {top: 0;\ncolor:|; left: 0}"},
    {u"a {top: 0; c|o, x}", 19, u"color", u"a {top: 0;\ncolor:|, x}"},
    {u"a {co|", 19, u"color", u"a {\ncolor:|"},
    {u"a {|", 19, u"color", u"a {\ncolor:|"},

    // The old name goes with its colon, and its value stays.
    {u"a {col|or: red}", 19, u"content", u"a {\ncontent:| red}"},
    {u"a {\n\tcolor|: red}", 19, u"color", u"a {\ncolor:| red}"},

    // Directly behind a delimiter nothing goes.
    {u"a {|color: red}", 19, u"top", u"a {\ntop:|color: red}"},
    {u"a {|\n\tcolor: red}", 19, u"top", u"a {\ntop:|\n\tcolor: red}"},
    {u"a {color: red;| top: 0}", 19, u"left", u"a {color: red;\nleft:| top: 0}"},
    {u"a {color:|red;}", 21, u"blue", u"a {color: blue;\n|red;}"},

    // Values end with a semicolon and a new line.
    {u"a {color: |}", 21, u"red", u"a {color: red;\n|}"},
    {u"a {color: r|}", 21, u"red", u"a {color: red;\n|}"},
    {u"a {color:\n r|e \n}", 21, u"red", u"a {color: red;\n|}"},
    {u"a {color: r|; top: 0}", 21, u"red", u"a {color: red;\n| top: 0}"},
    {u"a {color: r|e;}", 21, u"red", u"a {color: red;\n|}"},
    {u"a {color: r|", 21, u"red", u"a {color: red;\n|"},
    {u"a {font-family: a|, b; top: 0}", 21, u"serif", u"a {font-family: serif;\n|, b; top: 0}"},
    {u"a {color: r|: x}", 21, u"red", u"a {color: red;\n|: x}"},

    // Where the rule isn't closed yet, the selector of the next one stays.
    {u"a {|\n\nb {}", 19, u"color", u"a {\ncolor:|\n\nb {}"},
    {u"a {co|\n\nb {}", 19, u"color", u"a {\ncolor:|\n\nb {}"},
    {u"a { c|o\n\nb {}", 19, u"color", u"a {\ncolor:|\n\nb {}"},
    {u"a {\n  |co\n\nb {}", 19, u"color", u"a {\ncolor:|\n\nb {}"},
    {u"a {\n  | co\n\nb {}", 19, u"color", u"a {\ncolor:| co\n\nb {}"},
    {u"a {co  |\n\nb {}", 19, u"color", u"a {\ncolor:|\n\nb {}"},
    {u"a {top: 0; co|\n@media print {b {}}", 19, u"color", u"a {top: 0;\ncolor:|\n@media print {b {}}"},
    {u"a {color: |\n\nb {}", 21, u"red", u"a {color: red;\n|\n\nb {}"},
    {u"a {color: r|e\n\nb c {}", 21, u"red", u"a {color: red;\n|\n\nb c {}"},
    {u"a| {}", 19, u"color", u"\ncolor:| {}"},

    // Only a "{" tells that.
    {u"a {co|\n\nb:hover {}", 19, u"color", u"a {\ncolor:|hover {}"},
    {u"a {co|\n\nb, c {}", 19, u"color", u"a {\ncolor:|, c {}"},

    // A brace goes right behind the delimiter, whatever the list was, and nothing goes.
    {u"a {color: red; | \n", 19, u"}", u"a {color: red; }|  \n"},
    {u"a {| }", 19, u"}", u"a { }| }"},
    {u"a {color: | red", 21, u"}", u"a {color: }|  red"},
    {u"a {| b", 0, u"}", u"a { }| b"},

    // Without a delimiter all of the text goes.
    {u"a b|c", 19, u"top", u"\ntop:|"},
    {u"|", 19, u"top", u"\ntop:|"},
    {u"a b|c", 21, u"red", u" red;\n|"},
    {u"a b|c", 19, u"}", u" }|a bc"},
};

/// The text with an edit made, and the caret behind it.
Text Edited(const Text& text, const TypeAheadEdit& edit) {
    Text result = text;
    result.replace(static_cast<std::size_t>(edit.start), static_cast<std::size_t>(edit.end - edit.start), edit.text);
    const int caret = edit.start + static_cast<int>(edit.text.size());
    return DrawMarks({result, caret, caret});
}

TEST(TypeAhead, DelimitersAreFoundFromTheCharacterInFrontOfTheCaret) {
    for (const DelimiterCase& row : DelimiterCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn));
        const MarkedText marked = ReadMarks(row.drawn);
        EXPECT_EQ(LastDelimiterBefore(marked.text, marked.caret), row.before);
        EXPECT_EQ(NextDelimiterAfter(marked.text, marked.caret), row.next);
    }
}

TEST(TypeAhead, PositionsBeyondTheTextHoldNothing) {
    for (const BeyondCase& row : BeyondCases) {
        SCOPED_TRACE(Utf8FromText(row.text) + " at " + std::to_string(row.position));
        EXPECT_EQ(LastDelimiterBefore(row.text, row.position), row.before);
        EXPECT_EQ(NextDelimiterAfter(row.text, row.position), row.next);
    }
}

TEST(TypeAhead, ThePlaceOfTheCaretTellsWhatIsOffered) {
    for (const RequestCase& row : RequestCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn));
        const MarkedText marked = ReadMarks(row.drawn);
        EXPECT_EQ(TypeAheadTypeAt(marked.text, marked.caret), row.request.type);
        EXPECT_EQ(TypeAheadRequestAt(marked.text, marked.caret), row.request);
    }
}

TEST(TypeAhead, InSelectorsAndBehindCommasAndRulesNothingIsOffered) {
    for (const Text& drawn : NothingOffered) {
        SCOPED_TRACE(Utf8FromText(drawn));
        const MarkedText marked = ReadMarks(drawn);
        EXPECT_EQ(TypeAheadTypeAt(marked.text, marked.caret), 0);
        EXPECT_EQ(TypeAheadRequestAt(marked.text, marked.caret), std::nullopt);
    }
}

TEST(TypeAhead, EachCharacterDoesToAWaitingListWhatTheCasesSay) {
    for (const KeyCase& row : KeyCases) {
        for (const char16_t character : row.characters)
            EXPECT_EQ(TypeAheadKeyOf(character), row.key) << static_cast<int>(character);
    }
    EXPECT_EQ(TypeAheadKeyOf(u'\0'), TypeAheadKey::LeavesAlone);
}

TEST(TypeAhead, AChoiceWritesWhatTheCasesSay) {
    for (const EditCase& row : EditCases) {
        SCOPED_TRACE(Utf8FromText(row.drawn) + " " + Utf8FromText(row.choice));
        const MarkedText marked = ReadMarks(row.drawn);
        const auto edit = EditOfTypeAheadChoice(marked.text, marked.caret, row.type, row.choice, u"\n", u" ");
        ASSERT_TRUE(edit);
        EXPECT_EQ(Edited(marked.text, *edit), row.result);
    }
}

TEST(TypeAhead, AnEmptyChoiceWritesNothing) {
    EXPECT_EQ(EditOfTypeAheadChoice(u"a {}", 3, 19, u"", u"\n", u" "), std::nullopt);
    EXPECT_EQ(EditOfTypeAheadChoice(u"a {}", 3, 21, u"", u"\n", u" "), std::nullopt);
}

TEST(TypeAhead, AChoiceFromNoListWritesNothing) {
    for (const int type : {0, 20, 23, -1})
        EXPECT_EQ(EditOfTypeAheadChoice(u"a {}", 3, type, u"top", u"\n", u" "), std::nullopt) << type;
}

TEST(TypeAhead, WithoutSeparatorsAChoiceStandsAlone) {
    EXPECT_EQ(EditOfTypeAheadChoice(u"a {}", 3, 19, u"top", u"", u"")->text, u"top:");
    EXPECT_EQ(EditOfTypeAheadChoice(u"a {}", 3, 21, u"red", u"", u"")->text, u" red;");
    EXPECT_EQ(EditOfTypeAheadChoice(u"a {}", 3, 19, u"}", u"", u"")->text, u"}");
}

/// A place as a slow reader finds it, with the text in front of it and behind it.
struct SlowPlace {
    SlowPlace(const Text& text, int caret) {
        for (int index = 0; index < static_cast<int>(text.size()); ++index) {
            const bool isDelimiter = Text(u":,;{}").find(text[static_cast<std::size_t>(index)]) != Text::npos;
            if (isDelimiter && index < caret)
                before = index + 1;
            if (isDelimiter && index + 1 >= caret && next == 0)
                next = index + 1;
        }
        if (next == 0)
            next = static_cast<int>(text.size()) + 1;
    }

    int before = 0;
    int next = 0;
};

TEST(TypeAhead, InAnyTextAnyChoiceKeepsWhatIsBeyondTheDelimiters) {
    const Text units = u"ab:,;{} \n\r\t";
    std::mt19937 engine(421);
    for (int round = 0; round < 20'000; ++round) {
        Text text;
        for (std::size_t length = engine() % 24; length > 0; --length)
            text.push_back(units[engine() % units.size()]);
        const int caret = static_cast<int>(engine() % (text.size() + 1));
        const SlowPlace place(text, caret);
        ASSERT_EQ(LastDelimiterBefore(text, caret), place.before) << Utf8FromText(text) << " " << caret;
        ASSERT_EQ(NextDelimiterAfter(text, caret), place.next) << Utf8FromText(text) << " " << caret;
        const int type = engine() % 2 == 0 ? 19 : 21;
        const Text choice = engine() % 5 == 0 ? u"}" : u"x";
        const auto edit = EditOfTypeAheadChoice(text, caret, type, choice, u"\n", u"");
        ASSERT_TRUE(edit);
        ASSERT_EQ(edit->start, place.before);
        ASSERT_GE(edit->end, edit->start);
        ASSERT_LE(edit->end, std::max(place.next, edit->start));
        ASSERT_LE(edit->end, static_cast<int>(text.size()));
    }
}

}  // namespace
}  // namespace test
}  // namespace tintora
