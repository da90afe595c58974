#include "language/LexClass.h"

#include "language/ScannedLine.h"
#include "language/TextLines.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <limits>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

/// What random lines are made of.
constexpr auto Pieces = std::to_array<TextView>({
    u"{",      u"}",    u"{",       u"}",      u"\"",         u"'",      u"*",          u"/",        u"\\",
    u";",      u":",    u"!",       u" ",      u"\t",         u"\f",     u"/*",         u"*/",       u"\\\"",
    u"@media", u"@",    u"@Media ", u"@MEDIA", u"!important", u"a",      u"color",      u"red",      u"WIDTH",
    u"10px",   u"-2em", u"margin",  u"border", u"1px solid",  u"colour", u"background", u"url(a b)", u"font-family",
    u"\xD800", u"\0"sv, u"\xDC00",  u"h1 ",    u"color: red", u"; }",    u"a {",        u",",        u"\xC4\x0130",
});

class RandomText {
  public:
    Text Line(std::size_t pieces) {
        Text line;
        for (auto count = random_() % (pieces + 1); count > 0; --count)
            line.append(Pieces[random_() % Pieces.size()]);
        return line;
    }

    std::size_t Below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }

  private:
    std::mt19937 random_{17};
};

bool IsTokenType(std::int32_t type) {
    constexpr std::array<std::int32_t, 11> Types = {6, 17, 19, 20, 21, 23, 24, 25, 26, 27, 28};
    return std::find(Types.begin(), Types.end(), type) != Types.end();
}

/// Whether the tokens follow one another over the whole line, and none is empty.
bool Cover(const std::vector<LexToken>& tokens, TextView line) {
    std::int32_t end = 0;
    for (const LexToken& token : tokens) {
        if (token.start != end || token.length < 1 || !IsTokenType(token.type))
            return false;
        end += token.length;
    }
    return end == static_cast<std::int32_t>(line.size());
}

/// A control with lines that are edited: it keeps the tokens of each line as they were scanned last.
class EditedLines final : public LexBuffer {
  public:
    struct EditedLine {
        Text text;
        std::int32_t data = 0;
        std::vector<LexToken> tokens;
    };

    [[nodiscard]] std::int32_t GetLineLength(std::int32_t row) const override {
        return static_cast<std::int32_t>(At(row).text.size());
    }
    [[nodiscard]] std::int32_t GetLineData(std::int32_t row, int /*slot*/) const override { return At(row).data; }
    void SetLineData(std::int32_t row, int /*slot*/, std::int32_t value) override {
        lines_[static_cast<std::size_t>(row)].data = value;
    }

    [[nodiscard]] const std::vector<EditedLine>& Lines() const { return lines_; }

    /// Puts `inserted` in the place of `removed` lines from `row` on, and scans as far as flags change.
    void Replace(std::size_t row, std::size_t removed, const Texts& inserted) {
        const auto first = lines_.begin() + static_cast<std::ptrdiff_t>(row);
        std::vector<EditedLine> added;
        for (const Text& text : inserted)
            added.push_back({text, 0, {}});
        // What the line behind them was scanned with stays known.
        const std::int32_t data = row + removed > 0 ? lines_[row + removed - 1].data : 0;
        const auto rest = lines_.erase(first, first + static_cast<std::ptrdiff_t>(removed));
        lines_.insert(rest, added.begin(), added.end());
        const std::size_t lastEdited = row + added.size();
        if (!added.empty())
            lines_[lastEdited - 1].data = data;
        // With nothing in their place the line behind them is scanned whatever it was.
        Rescan(row, added.empty() ? lastEdited + 1 : lastEdited);
    }

  private:
    [[nodiscard]] const EditedLine& At(std::int32_t row) const { return lines_[static_cast<std::size_t>(row)]; }

    void Rescan(std::size_t first, std::size_t behindEdited) {
        bool hasChanged = true;
        for (std::size_t row = first; row < lines_.size() && (row < behindEdited || hasChanged); ++row) {
            lines_[row].tokens =
                TokensOfRow(lexer_, *this, static_cast<std::int32_t>(row), lines_[row].text, &hasChanged);
        }
    }

    std::vector<EditedLine> lines_;
    LexClass lexer_;
};

/// The tokens of a line, without the judgement of values whose name isn't on it.
std::vector<LexToken> WithoutForeignJudgements(std::vector<LexToken> tokens) {
    bool hasName = false;
    for (LexToken& token : tokens) {
        hasName = hasName || token.type == token_type::PropertyName || token.type == token_type::UnknownPropertyName;
        if (!hasName && token.type == token_type::InvalidValue)
            token.type = token_type::ValidValue;
    }
    return tokens;
}

void ExpectIsAsScannedFromTheTop(const EditedLines& edited) {
    EditedLines fresh;
    Texts texts;
    for (const EditedLines::EditedLine& line : edited.Lines())
        texts.push_back(line.text);
    fresh.Replace(0, 0, texts);
    for (std::size_t row = 0; row < texts.size(); ++row) {
        SCOPED_TRACE("line " + std::to_string(row) + ": " + Utf8FromText(texts[row]));
        ASSERT_EQ(edited.Lines()[row].data, fresh.Lines()[row].data);
        ASSERT_EQ(WithoutForeignJudgements(edited.Lines()[row].tokens),
                  WithoutForeignJudgements(fresh.Lines()[row].tokens));
    }
}

/// Lines that would be slow if a token cost a walk over the line.
constexpr auto SlowPatterns = std::to_array<TextView>({
    u"!",     u"!:",    u":",    u"\\\"",  u"/",  u"a ",           u"\\\"a/**/",
    u"a/**/", u"a/*",   u"! ",   u"{",     u"{}", u"@media",       u" @media:",
    u";",     u"\\\";", u"{a:b", u"{a:b}", u"a!", u"{margin:1px ", u"{background:",
    u"\"",    u" ",
});

/// What goes in front of the pattern: a long name, and a rule that takes many words.
constexpr auto SlowBeginnings = std::to_array<TextView>({u"", u"{LONG:", u"{margin:", u"{border:", u"{font:"});

Text SlowLine(TextView beginning, TextView pattern, std::size_t length) {
    Text line(beginning);
    if (const std::size_t at = line.find(u"LONG"); at != Text::npos)
        line.replace(at, 4, Text(length / 2, u'x'));
    while (line.size() < length)
        line.append(pattern);
    line.resize(length);
    return line;
}

/// The processor's time, so that other work on the machine counts for nothing; the shortest of some scans.
std::clock_t TimeOfScan(const Text& line) {
    auto shortest = std::numeric_limits<std::clock_t>::max();
    TextLines lines(line);
    LexClass lexer;
    for (int round = 0; round < 4; ++round) {
        const std::clock_t start = std::clock();
        EXPECT_TRUE(Cover(TokensOfRow(lexer, lines, 0, line), line));
        shortest = std::min(shortest, std::clock() - start);
    }
    return shortest;
}

TEST(LexInvariants, TheTokensOfALineCoverIt) {
    RandomText random;
    LexClass lexer;
    for (int round = 0; round < 100000; ++round) {
        const Text line = random.Line(12);
        const Text text = u"\n" + line;
        TextLines lines(text);
        lines.SetLineData(0, 0, static_cast<std::int32_t>(random.Below(32)) * LexInComment);
        ASSERT_TRUE(Cover(TokensOfRow(lexer, lines, 1, line), line)) << Utf8FromText(line);
    }
}

TEST(LexInvariants, ChunksOfEveryFormCoverALine) {
    RandomText random;
    for (int round = 0; round < 20000; ++round) {
        const Text line = random.Line(12);
        for (auto* const next : {&LexClass::GetNextChunk, &LexClass::GetNextChunk0, &LexClass::GetNextChunk2}) {
            Text chunks;
            while (chunks.size() < line.size()) {
                const Text chunk = next(line, static_cast<std::int32_t>(chunks.size()) + 1);
                ASSERT_FALSE(chunk.empty()) << Utf8FromText(line);
                chunks.append(chunk);
            }
            ASSERT_EQ(chunks, line);
        }
    }
}

TEST(LexInvariants, ScanningOnlyWhatChangedGivesWhatAFullScanGives) {
    RandomText random;
    EditedLines edited;
    edited.Replace(0, 0, {u"a {", u"color: red;", u"}"});
    for (int round = 0; round < 5000; ++round) {
        const std::size_t count = edited.Lines().size();
        const std::size_t row = random.Below(count + 1);
        const std::size_t removed = random.Below(std::min<std::size_t>(count - row, 3) + 1);
        Texts inserted(random.Below(count > 25 ? 2 : 4));
        for (Text& line : inserted)
            line = random.Line(5);
        edited.Replace(row, removed, inserted);
        ASSERT_NO_FATAL_FAILURE(ExpectIsAsScannedFromTheTop(edited)) << "edit " << round;
    }
}

TEST(LexInvariants, NoLineTakesMoreTimeThanInProportionToItsLength) {
    constexpr std::size_t Short = 4000;
    constexpr std::size_t Long = 8 * Short;
    for (const TextView beginning : SlowBeginnings) {
        for (const TextView pattern : SlowPatterns) {
            SCOPED_TRACE(Utf8FromText(Text(beginning).append(pattern)));
            const auto shortTime = TimeOfScan(SlowLine(beginning, pattern, Short));
            const auto longTime = TimeOfScan(SlowLine(beginning, pattern, Long));
            // In proportion it is 8 times, with the square of the length 64 times.
            constexpr std::clock_t Allowance = CLOCKS_PER_SEC / 200;
            EXPECT_LT(longTime, 32 * shortTime + Allowance);
        }
    }
}

}  // namespace
}  // namespace tintora
