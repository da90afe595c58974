#include "language/LexClass.h"

#include "language/ScannedLine.h"
#include "language/TextLines.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct ScanCase {
    /// Lines, each with "\n" behind it but the last.
    TextView text;
    /// Each token as its text in brackets and its type, the tokens of a line parted by blanks, lines by "\n".
    TextView tokens;
    /// The flags behind the last line.
    std::int32_t state;
};

constexpr std::int32_t InRule = LexInRule;
constexpr std::int32_t InName = LexInRule | LexExpectName;

constexpr auto ScanCases = std::to_array<ScanCase>({
    {u"h1 {color: red;}", u"[h1 ]24 [{]23 [color]19 [:]17 [ red]21 [;]17 [}]23", 0},
    {u"h1 {colour: red;}", u"[h1 ]24 [{]23 [colour]20 [:]17 [ red]27 [;]17 [}]23", 0},
    {u"a {color: red !important;}", u"[a ]24 [{]23 [color]19 [:]17 [ red ]21 [!important]26 [;]17 [}]23", 0},
    {u"a:hover {}", u"[a]24 [:]24 [hover ]24 [{]23 [}]23", 0},
    {u"/* x */ a {}", u"[/* x */]6 [ a ]24 [{]23 [}]23", 0},
    {u"/* x\ny */ a {}", u"[/* x]6\n[y */]6 [ a ]24 [{]23 [}]23", 0},
    {u"@media print {\na {}\n}", u"[@media print {]25\n[a ]24 [{]23 [}]23\n[}]23", LexInMedia},
    {u"  @media print {\na {color: red}", u"[  @media print ]25 [{]23\n[a ]20 [{]23 [color]19 [:]17 [ red]21 [}]23",
     LexInMedia},

    {u"", u"", 0},
    {u"\n\n", u"\n\n", 0},
    {u" \t", u"[ \t]24", 0},
    {u";", u"[;]24", 0},
    {u"}", u"[}]23", 0},
    {u"{", u"[{]23", InName},
    {u"{{", u"[{]23 [{]23", InName},
    {u"a b, c > d", u"[a b, c > d]24", 0},

    // A name is tested without the white space around it, and white space in its place is no fault.
    {u"a { color : red", u"[a ]24 [{]23 [ color ]19 [:]17 [ red]21", InRule},
    {u"a { COLOR: RED", u"[a ]24 [{]23 [ COLOR]19 [:]17 [ RED]21", InRule},
    {u"a {\n   \n", u"[a ]24 [{]23\n[   ]19\n", InName},
    {u"a {\ncolor", u"[a ]24 [{]23\n[color]19", InName},
    {u"a {table-layout: fixed}", u"[a ]24 [{]23 [table-layout]20 [:]17 [ fixed]27 [}]23", 0},
    {u"a {font: x", u"[a ]24 [{]23 [font]19 [:]17 [ x]21", InRule},

    // A value is judged as a whole, with its blanks.
    {u"a {border: 1px solid red;", u"[a ]24 [{]23 [border]19 [:]17 [ 1px solid red]21 [;]17", InName},
    {u"a {color: Inherit}", u"[a ]24 [{]23 [color]19 [:]17 [ Inherit]21 [}]23", 0},
    {u"a {text-decoration: INHERIT}", u"[a ]24 [{]23 [text-decoration]19 [:]17 [ INHERIT]21 [}]23", 0},
    {u"a {color: }", u"[a ]24 [{]23 [color]19 [:]17 [ ]21 [}]23", 0},
    {u"a {font-family: \"A B\",c", u"[a ]24 [{]23 [font-family]19 [:]17 [ \"A B\",c]21", InRule},
    {u"a {color: a:b", u"[a ]24 [{]23 [color]19 [:]17 [ a]27 [:]17 [b]27", InRule},
    {u"a {width: 1px; width: -1px", u"[a ]24 [{]23 [width]19 [:]17 [ 1px]21 [;]17 [ width]19 [:]17 [ -1px]27", InRule},

    // A value that goes on over the line's end is judged in two parts.
    {u"a {border: 1px\n solid 2px;\n", u"[a ]24 [{]23 [border]19 [:]17 [ 1px]21\n[ solid 2px]21 [;]17\n", InName},
    {u"a {outline:\nthin", u"[a ]24 [{]23 [outline]19 [:]17\n[thin]21", InRule},
    {u"a {color:\nred}\nb {width\n:\n1px",
     u"[a ]24 [{]23 [color]19 [:]17\n[red]21 [}]23\n"
     u"[b ]24 [{]23 [width]19\n[:]17\n[1px]21",
     InRule},

    // White space where a name is expected is the name that the next value is judged against.
    {u"a {color\n :red", u"[a ]24 [{]23 [color]19\n[ ]19 [:]17 [red]27", InRule},
    {u"a {color\n :-1px", u"[a ]24 [{]23 [color]19\n[ ]19 [:]17 [-1px]21", InRule},

    // "!" runs up to white space or a delimiter.
    {u"!important", u"[!important]26", 0},
    {u"a {color: red!IMPORTANT", u"[a ]24 [{]23 [color]19 [:]17 [ red]21 [!IMPORTANT]26", InRule},
    {u"a {color: red !important blue", u"[a ]24 [{]23 [color]19 [:]17 [ red ]21 [!important]26 [ blue]21", InRule},
    {u"a {color: red ! important", u"[a ]24 [{]23 [color]19 [:]17 [ red ]21 [!]27 [ important]27", InRule},
    {u"a {color: !importantly", u"[a ]24 [{]23 [color]19 [:]17 [ ]21 [!importantly]27", InRule},
    {u"a {color: !important/* x */", u"[a ]24 [{]23 [color]19 [:]17 [ ]21 [!important/*]27 [ x */]27", InRule},
    {u"!a,b", u"[!a]24 [,b]24", 0},
    {u"!!a!b:", u"[!!a!b]24 [:]24", 0},
    {u"a {!important: red", u"[a ]24 [{]23 [!important]26 [:]17 [ red]27", InRule},

    // A comment begins wherever the scan gets to "/*", and is looked for only there and in texts.
    {u"/*/ a", u"[/*/]6 [ a]24", 0},
    {u"/**/a", u"[/**/]6 [a]24", 0},
    {u"a/* b */c", u"[a]24 [/* b */]6 [c]24", 0},
    {u"a/*", u"[a]24 [/*]6", LexInComment},
    {u"a {co/**/lor: r/**/ed", u"[a ]24 [{]23 [co]20 [/**/]6 [lor]20 [:]17 [ r]27 [/**/]6 [ed]27", InRule},
    {u"a {/* x\n\ny */color", u"[a ]24 [{]23 [/* x]6\n\n[y */]6 [color]19", InName},
    {u"*/ a", u"[*/ a]24", 0},
    {u"/ * a", u"[/ * a]24", 0},
    {u"a/", u"[a/]24", 0},
    {u"/* \"*/\" {", u"[/* \"*/]6 [\" ]24 [{]23", InName},

    // An "@media" that begins a line takes all through its "{", and there is no way out of it.
    {u"@MEDIA Print { a {}", u"[@MEDIA Print {]25 [ a ]24 [{]23 [}]23", LexInMedia},
    {u"@media print", u"[@media print]25", LexInMedia},
    {u"@media print;a:b {", u"[@media print;a:b {]25", LexInMedia},
    {u"@media/* x */ {", u"[@media/* x */ {]25", LexInMedia},
    {u"@medias {", u"[@medias {]25", LexInMedia},
    {u"@media print { a {\n", u"[@media print {]25 [ a ]24 [{]23\n", LexInMedia | InName | LexInMediaRule},
    {u"@media print { a {color:red} b\n{",
     u"[@media print {]25 [ a ]24 [{]23 [color]19 [:]17 [red]21 [}]23 [ b]24\n[{]23",
     LexInMedia | InName | LexInMediaRule},
    {u"}@media print {", u"[}]23 [@media print ]25 [{]23", LexInMedia | InName | LexInMediaRule},
    {u"a @media print {", u"[a @media print ]24 [{]23", InName},
    {u"a {color: red;@media x", u"[a ]24 [{]23 [color]19 [:]17 [ red]21 [;]17 [@media x]25", LexInMedia | InName},
    {u"/*\n@media */", u"[/*]6\n[@media */]6", LexInMedia},
    {u"/* @media */", u"[/* @media */]6", 0},
    {u"@import url(a);", u"[@import url(a)]24 [;]24", 0},

    // A backslash and a double quote hide all through the unit behind the next ";".
    {u"a {voice-family: \"\\\"}\\\"\";voice-family: x",
     u"[a ]24 [{]23 [voice-family]19 [:]17 [ \"]27 "
     u"[\\\"}\\\"\";v]28 [oice-family]20 [:]17 [ x]27",
     InRule},
    {u"a {color: \\\"x;}", u"[a ]24 [{]23 [color]19 [:]17 [ ]21 [\\\"x;}]28", InName},
    {u"a {color: \\\"x;", u"[a ]24 [{]23 [color]19 [:]17 [ ]21 [\\\"x;]28", InName},
    {u"\\\";", u"[\\\";]28", LexExpectName},
    {u"\\\";\na\n{", u"[\\\";]28\n[a]24\n[{]23", InName},
    {u"\\\";}", u"[\\\";}]28", LexExpectName},

    // Without a ";" it is a text that ends at the next one.
    {u"\\\"", u"[\\\"]24", 0},
    {u"\\\"\\\"a", u"[\\\"]24 [\\\"a]24", 0},
    {u"a {color: \\\"x", u"[a ]24 [{]23 [color]19 [:]17 [ ]21 [\\\"x]27", InRule},
    {u"\\\"/**/", u"[\\\"]24 [/**/]6", 0},
    {u"\\a;", u"[\\a]24 [;]24", 0},
    {u"a\\", u"[a\\]24", 0},
    {u"\\", u"[\\]24", 0},

    {u"\xD800{\xDC00:\0"sv, u"[\xD800]24 [{]23 [\xDC00]20 [:]17 [\0]27"sv, InRule},
    {u"\x0130 {w\x0130"
     u"dth: 1px",
     u"[\x0130 ]24 [{]23 [w\x0130"
     u"dth]20 [:]17 [ 1px]27",
     InRule},
});

struct ChunkCase {
    TextView line;
    std::int32_t position;
    TextView chunk;
    /// The same with plain quotes, and cut into words.
    TextView chunk0;
    TextView chunk2;
};

constexpr auto ChunkCases = std::to_array<ChunkCase>({
    {u"", 1, u"", u"", u""},
    {u"a", 0, u"", u"", u""},
    {u"a", -1, u"", u"", u""},
    {u"a", 2, u"", u"", u""},
    {u"a b:c", 1, u"a b", u"a b", u"a"},
    {u"a b:c", 2, u" b", u" b", u" b"},
    {u"a b:c", 4, u":", u":", u":"},
    {u" \t a\tb", 1, u" \t a\tb", u" \t a\tb", u" \t a"},
    {u"  ", 1, u"  ", u"  ", u"  "},
    {u"1px  solid;", 1, u"1px  solid", u"1px  solid", u"1px"},
    {u"1px  solid;", 4, u"  solid", u"  solid", u"  solid"},
    {u"{}", 2, u"}", u"}", u"}"},
    {u"!a b", 1, u"!a", u"!a", u"!a"},
    {u"!", 1, u"!", u"!", u"!"},
    {u"a\\\"b;c", 1, u"a", u"a\\\"b", u"a"},
    {u"a\\\"b;cd", 2, u"\\\"b;c", u"\\\"b", u"\\\"b;c"},
    {u"a\\\"b;", 2, u"\\\"b;", u"\\\"b", u"\\\"b;"},
    {u"\\\"a b", 1, u"\\\"a b", u"\\\"a b", u"\\\"a"},
    {u"\\\"\\\"", 1, u"\\\"", u"\\\"\\\"", u"\\\""},
    {u"\\\"/*", 1, u"\\\"", u"\\\"", u"\\\""},
    {u"/*a/*b", 1, u"/*a", u"/*a", u"/*a"},
    {u"/*/*", 1, u"/*", u"/*", u"/*"},
    {u"a/*b", 1, u"a", u"a", u"a"},
    {u"a/b*", 1, u"a/b*", u"a/b*", u"a/b*"},
    {u"@media a b { c", 1, u"@media a b {", u"@media a b {", u"@media a b {"},
    {u"@media a b", 1, u"@media a b", u"@media a b", u"@media a b"},
    {u"@media a:b { c", 2, u"media a", u"media a", u"media"},
    {u" @media a { c", 2, u"@media a ", u"@media a ", u"@media"},
});

Text Number(std::int32_t number) {
    const std::string digits = std::to_string(number);
    return Text(digits.begin(), digits.end());
}

Text Dump(TextView line, const std::vector<LexToken>& tokens) {
    Text dump;
    for (const LexToken& token : tokens) {
        dump.append(dump.empty() ? u"" : u" ").append(u"[");
        dump.append(line.substr(static_cast<std::size_t>(token.start), static_cast<std::size_t>(token.length)));
        dump.append(u"]").append(Number(token.type));
    }
    return dump;
}

class LexClassTest : public testing::Test {
  protected:
    Text Scan(TextView text) { return Scan(lexer, text); }

    /// Scans all lines of `text` from the top.
    Text Scan(LexClass& with, TextView text) {
        TextLines lines(text);
        Text dump;
        for (std::int32_t row = 0; row < lines.Count(); ++row) {
            dump.append(row == 0 ? u"" : u"\n");
            dump.append(Dump(lines.Line(row), TokensOfRow(with, lines, row, lines.Line(row), &hasChanged)));
        }
        return dump;
    }

    LexClass lexer;
    bool hasChanged = false;
};

TEST_F(LexClassTest, ALineHasItsTokens) {
    for (const ScanCase& row : ScanCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        LexClass fresh;
        EXPECT_EQ(Utf8FromText(Scan(fresh, row.text)), Utf8FromText(row.tokens));
        EXPECT_EQ(fresh.LexState(), row.state);
    }
}

TEST_F(LexClassTest, AChunkIsTheRawTextOfAToken) {
    for (const ChunkCase& row : ChunkCases) {
        SCOPED_TRACE(Utf8FromText(row.line) + " at " + std::to_string(row.position));
        EXPECT_EQ(LexClass::GetNextChunk(row.line, row.position), row.chunk);
        EXPECT_EQ(LexClass::GetNextChunk0(row.line, row.position), row.chunk0);
        EXPECT_EQ(LexClass::GetNextChunk2(row.line, row.position), row.chunk2);
    }
}

TEST_F(LexClassTest, TheSecondFormJudgesNoValue) {
    constexpr TextView Line = u"a {colour: x; color: red !important}";
    TextLines lines(Line);
    lexer.ISourceLex4_BeginLineScan(lines, 0, Line);
    std::vector<LexToken> tokens;
    for (LexToken token = lexer.ISourceLex4_ScanToken1(); token.type != 0; token = lexer.ISourceLex4_ScanToken1())
        tokens.push_back(token);
    EXPECT_EQ(Utf8FromText(Dump(Line, tokens)),
              "[a ]24 [{]23 [colour]20 [:]17 [ x]24 [;]17 [ color]19 [:]17 [ red ]24 [!important]24 [}]23");
}

TEST_F(LexClassTest, AtTheEndOfTheLineThereIsNoTokenHoweverOftenItIsAsked) {
    TextLines lines(u"ab");
    lexer.ISourceLex4_BeginLineScan(lines, 0, u"ab");
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{24, 0, 2}));
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{0, 2, 0}));
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{0, 2, 0}));
    EXPECT_EQ(lexer.ISourceLex4_GetLineIndex(), 2);
}

TEST_F(LexClassTest, TheIndexMayBeSet) {
    TextLines lines(u"ab{c");
    lexer.ISourceLex4_BeginLineScan(lines, 0, u"ab{c");
    lexer.ISourceLex4_SetLineIndex(1);
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{24, 1, 1}));
    lexer.ISourceLex4_SetLineIndex(-3);
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{24, 0, 2}));
    lexer.ISourceLex4_SetLineIndex(9);
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{0, 9, 0}));
}

TEST_F(LexClassTest, TheLineIsCutAtItsLength) {
    TextLines lines(u"ab\n\ncd");
    lexer.ISourceLex4_BeginLineScan(lines, 2, u"cd\r\nmore");
    EXPECT_EQ(lexer.LineText(), u"cd");
    EXPECT_EQ(lexer.LineNumber(), 2);
    EXPECT_EQ(lexer.LineLength(), 2);
    lexer.ISourceLex4_BeginLineScan(lines, 0, u"a");
    EXPECT_EQ(lexer.LineLength(), 2);
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{24, 0, 1}));
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{0, 1, 0}));
}

TEST_F(LexClassTest, TheBitsOfTheControlStay) {
    TextLines lines(u"a {\ncolor");
    lines.SetLineData(0, 0, LexInComment | 0x5A);
    lines.SetLineData(1, 0, 0x81);
    static_cast<void>(TokensOfRow(lexer, lines, 0, lines.Line(0), &hasChanged));
    EXPECT_EQ(lines.GetLineData(0, 0), InName | 0x5A);
    EXPECT_TRUE(hasChanged);
    lexer.ISourceLex4_BeginLineScan(lines, 1, lines.Line(1));
    EXPECT_EQ(lexer.LexState(), InName);
    EXPECT_EQ(lexer.ISourceLex4_ScanToken(), (LexToken{19, 0, 5}));
    EXPECT_TRUE(lexer.ISourceLex4_EndLineScan(lines));
    EXPECT_EQ(lines.GetLineData(1, 0), InName | 0x81);
}

TEST_F(LexClassTest, OfTheOldFlagsOnlySixteenBitsAreLookedAt) {
    TextLines lines(u"a");
    lines.SetLineData(0, 0, 0x70000 | 0x12);
    static_cast<void>(TokensOfRow(lexer, lines, 0, u"a", &hasChanged));
    EXPECT_FALSE(hasChanged);
    EXPECT_EQ(lines.GetLineData(0, 0), 0x12);
}

TEST_F(LexClassTest, TheEndOfALineTellsWhetherItsFlagsChanged) {
    TextLines lines(u"/* x\ny");
    static_cast<void>(TokensOfRow(lexer, lines, 0, lines.Line(0), &hasChanged));
    EXPECT_TRUE(hasChanged);
    static_cast<void>(TokensOfRow(lexer, lines, 0, lines.Line(0), &hasChanged));
    EXPECT_FALSE(hasChanged);
    static_cast<void>(TokensOfRow(lexer, lines, 0, u"/**/", &hasChanged));
    EXPECT_TRUE(hasChanged);
    static_cast<void>(Scan(u"a {}"));
    EXPECT_FALSE(hasChanged);
}

TEST_F(LexClassTest, AValueIsJudgedAgainstTheNameThatWasScannedLast) {
    TextLines lines(u"a {color:\nred\n}\nb {width:\n1px");
    for (std::int32_t row = 0; row < lines.Count(); ++row)
        static_cast<void>(TokensOfRow(lexer, lines, row, lines.Line(row)));
    EXPECT_EQ(lexer.LastPropertyName(), u"width");
    EXPECT_EQ(TokensOfRow(lexer, lines, 1, u"red").front().type, 27);
    static_cast<void>(TokensOfRow(lexer, lines, 0, lines.Line(0)));
    EXPECT_EQ(lexer.LastPropertyName(), u"color");
    EXPECT_EQ(TokensOfRow(lexer, lines, 1, u"red").front().type, 21);
}

TEST_F(LexClassTest, WithoutANameLengthsAreValid) {
    TextLines lines(u"a\n-1px");
    lines.SetLineData(0, 0, InRule);
    EXPECT_EQ(TokensOfRow(lexer, lines, 1, u"-1px").front().type, 21);
    EXPECT_EQ(TokensOfRow(lexer, lines, 1, u"red").size(), 1U);
    EXPECT_EQ(lexer.LastPropertyName(), u"");
}

TEST_F(LexClassTest, TheFlagsAreTested) {
    for (std::int32_t state = 0; state < 8192; state += 256) {
        EXPECT_EQ(LexClass::IsInComment(state), (state & 256) != 0);
        EXPECT_EQ(LexClass::IsInRule(state), (state & 512) != 0);
        EXPECT_EQ(LexClass::IsNameExpected(state), (state & 1024) != 0);
        EXPECT_EQ(LexClass::IsInMedia(state), (state & 2048) != 0);
        EXPECT_EQ(LexClass::IsInCommentOrMedia(state), (state & (256 | 2048)) != 0);
        EXPECT_FALSE(lexer.IsInMediaRule(state));
    }
    static_cast<void>(Scan(u"@media print {"));
    EXPECT_TRUE(lexer.IsInMediaRule(LexInMedia));
    EXPECT_FALSE(lexer.IsInMediaRule(LexInMediaRule));
}

TEST_F(LexClassTest, SmallTestsOfTexts) {
    EXPECT_TRUE(LexClass::isPunctuation(u"a:b;", 2));
    EXPECT_TRUE(LexClass::isPunctuation(u"a:b;", 4));
    EXPECT_FALSE(LexClass::isPunctuation(u"a:b;", 1));
    EXPECT_FALSE(LexClass::isPunctuation(u"a:b;", 0));
    EXPECT_FALSE(LexClass::isPunctuation(u"a:b;", 5));
    EXPECT_FALSE(LexClass::isPunctuation(u"", 1));
    EXPECT_TRUE(LexClass::isImportant(u"!Important"));
    EXPECT_FALSE(LexClass::isImportant(u"!important "));
    EXPECT_FALSE(LexClass::isImportant(u"important"));
    EXPECT_EQ(lexer.ISourceLex4_GetDesiredCase(), 0);
    EXPECT_EQ(lexer.ISourceLex4_GetProperties(), 0);
}

TEST_F(LexClassTest, ALineMayBeAsLongAsAStyleSheetAndNoLonger) {
    for (const TextView pattern : {u"a"sv, u"a {color: red} "sv, u"!"sv, u"\\\""sv, u"/*"sv}) {
        Text line;
        while (line.size() < MaximumTextLength)
            line.append(pattern);
        line.resize(MaximumTextLength);
        EXPECT_NO_THROW(static_cast<void>(Scan(line)));
        EXPECT_NO_THROW(static_cast<void>(LexClass::GetNextChunk(line, 32767)));
        line.push_back(u'a');
        EXPECT_THROW(static_cast<void>(Scan(line)), OverflowFailure);
        EXPECT_THROW(static_cast<void>(LexClass::GetNextChunk(line, 1)), OverflowFailure);
    }
}

TEST_F(LexClassTest, ALineThatIsTooLongChangesNothing) {
    static_cast<void>(Scan(u"a {color"));
    const Text tooLong(MaximumTextLength + 1, u'a');
    const TextLines lines(tooLong);
    EXPECT_THROW(lexer.ISourceLex4_BeginLineScan(lines, 0, tooLong), OverflowFailure);
    EXPECT_EQ(lexer.LineText(), u"a {color");
    EXPECT_EQ(lexer.LineLength(), 8);
    EXPECT_EQ(lexer.LexState(), InName);
}

}  // namespace
}  // namespace tintora
