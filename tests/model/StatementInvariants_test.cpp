#include "StatementChecks.h"
#include "linking/TextFiles.h"
#include "model/MediaBlocks.h"
#include "text/Encoding.h"

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

TEST(StatementInvariants, AMillionRandomTextsAreGivenBack) {
    RandomTexts texts(20260101);
    for (int round = 0; round < 1'000'000; ++round) {
        const Text text = texts.Next(round % 10 == 0 ? 200 : 40);
        ASSERT_EQ(test::FaultInStatements(text), "") << Utf8FromText(text);
    }
}

TEST(StatementInvariants, NoQuestionAboutARandomTextThrows) {
    RandomTexts texts(7);
    for (int round = 0; round < 20'000; ++round) {
        const Text text = texts.Next(120) + u"a";
        ASSERT_NO_THROW(test::AskEverything(text, 7)) << Utf8FromText(text);
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
        EXPECT_EQ(test::FaultInStatements(ReadTextFile(TextFromFileName(entry.path().native()))), "");
        ++count;
    }
    EXPECT_GE(count, 10);
}

}  // namespace
}  // namespace tintora
