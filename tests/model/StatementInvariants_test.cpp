#include "linking/TextFiles.h"
#include "model/MediaBlocks.h"
#include "model/StatementScan.h"
#include "model/ktStyleSheet.h"
#include "text/Narrowing.h"
#include "text/Whitespace.h"

#include <gtest/gtest.h>
#include <filesystem>
#include <random>

// What holds for every text whatever: the statements joined give it back, and no question about it throws.

namespace tintora {
namespace {

const Texts Alphabet = {u"{",    u"}",  u"\"",   u"'",      u"*",      u"/",       u"/*", u"*/",
                        u";",    u":",  u"\\\"", u"@media", u"@MEDIA", u"@import", u" ",  u"\n",
                        u"\r\n", u"\t", u"a",    u"b",      u"<!--",   u"-->",     u","};

class RandomTexts {
  public:
    explicit RandomTexts(unsigned seed) : engine_(seed) {}

    Text Next(std::size_t longest) {
        const std::size_t length = engine_() % (longest + 1);
        Text text;
        while (text.size() < length)
            text += Alphabet[engine_() % Alphabet.size()];
        text.resize(length);
        return text;
    }

  private:
    std::mt19937 engine_;
};

/// The entries that aren't nested, joined; and a nested one must stand in the text where it says.
Text JoinedTopLevel(TextView text, const ScannedStatements& scanned) {
    Text joined;
    for (std::size_t index = 0; index < scanned.statements.size(); ++index) {
        const Text& statement = scanned.statements[index];
        const StatementOrigin& origin = scanned.origins[index];
        EXPECT_EQ(text.substr(origin.start, statement.size()), statement);
        if (origin.isNested) {
            EXPECT_LE(origin.start + statement.size(), joined.size()) << "it lies in the block in front of it";
        } else {
            EXPECT_EQ(origin.start, joined.size());
            joined += statement;
        }
    }
    return joined;
}

void ExpectJoined(TextView text) {
    const ScannedStatements scanned = ScanStatementsWithOrigins(text);
    if (IsAllWhitespace(text) || text.empty()) {
        EXPECT_TRUE(scanned.statements.empty());
        return;
    }
    EXPECT_EQ(JoinedTopLevel(text, scanned), text);
}

// The nested entries are the same strings that the block holds, so it is enough to know that leaving some entries out
// gives the text; which ones is what the tables of cases test.
TEST(StatementInvariants, AMillionRandomTextsAreGivenBack) {
    RandomTexts texts(20260101);
    for (int round = 0; round < 1'000'000; ++round) {
        const Text text = texts.Next(round % 10 == 0 ? 200 : 40);
        ASSERT_NO_THROW(ExpectJoined(text));
        if (testing::Test::HasFailure())
            FAIL() << "in round " << round;
    }
}

TEST(StatementInvariants, NoQuestionAboutARandomTextThrows) {
    RandomTexts texts(7);
    ktStyleSheet sheet;
    for (int round = 0; round < 20'000; ++round) {
        const Text text = texts.Next(120) + u"a";
        sheet.CacheStatements(text);
        const int count = static_cast<int>(sheet.GetAllStatementsAsTextUnstripped().size());
        for (int position = -1; position <= static_cast<int>(text.size()) + 1; position += 7) {
            const int number = sheet.GetStatementNumber(position);
            ASSERT_GE(number, count == 0 ? 0 : 1);
            ASSERT_LE(sheet.GetStatementStartChar(position), std::max(position, 1));
            static_cast<void>(sheet.CursorInSelector(position));
            static_cast<void>(sheet.GetSelectorFromSelection(position));
            static_cast<void>(sheet.GetPropertiesFromSelection(position));
            static_cast<void>(sheet.getPropertyFromSelection(position));
            static_cast<void>(sheet.GetStatementNumber1(position));
            static_cast<void>(sheet.GetStatementStartChar1(position));
        }
        static_cast<void>(sheet.GetAllSelectorsAsText());
        static_cast<void>(sheet.GetAllColors());
        static_cast<void>(sheet.GetAllColors1());
        static_cast<void>(sheet.GetAllFonts());
        static_cast<void>(sheet.GetAllURLs());
        static_cast<void>(sheet.GetAllClasses());
        static_cast<void>(sheet.GetAllIDs());
        for (const Text& statement : sheet.GetAllStatementsAsText())
            static_cast<void>(sheet.GetStatementProperties(sheet.ExtractProperties(statement)));
    }
}

TEST(StatementInvariants, WithoutBlocksTheEntriesJoinedAreTheText) {
    RandomTexts texts(99);
    for (int round = 0; round < 100'000; ++round) {
        Text text = texts.Next(80);
        if (MentionsMedia(text) || text.empty() || IsAllWhitespace(text))
            continue;
        Text joined;
        for (const Text& statement : ScanStatements(text))
            joined += statement;
        ASSERT_EQ(joined, text);
    }
}

TEST(StatementInvariants, EverySampleIsGivenBack) {
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TINTORA_SAMPLES)) {
        if (entry.path().extension() != ".css")
            continue;
        SCOPED_TRACE(entry.path().string());
        ExpectJoined(ReadTextFile(TextFromFileName(entry.path().native())));
        ++count;
    }
    EXPECT_GE(count, 10);
}

}  // namespace
}  // namespace tintora
