#include "properties/GeneratedContent.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <vector>

namespace tintora {
namespace {

struct SplitCase {
    Text value;
    Texts parts;
};

const std::vector<SplitCase> Quotes = {
    {u"", {}},
    {u"none", {}},
    {u"\"«\" \"»\" \"‹\" \"›\"", {u"\"«\" \"»\"", u"\"‹\" \"›\""}},
    {u"'<' '>'", {u"'<' '>'"}},
    {u"\"<\"'>'", {u"\"<\" '>'"}},
    {u"\"it's\" '\"'", {u"\"it's\" '\"'"}},
    {u"\"a b\" \"c\"", {u"\"a b\" \"c\""}},
    {u"\"\" \"\"", {u"\"\" \"\""}},
    {u"x \"a\" y \"b\" z !important", {u"\"a\" \"b\""}},
    // A string without a partner, and one that isn't closed, are dropped.
    {u"\"a\" \"b\" \"c\"", {u"\"a\" \"b\""}},
    {u"\"a\"", {}},
    {u"\"a\" \"b", {}},
    {u"\"a\" \"b\" 'c \"d\"", {u"\"a\" \"b\""}},
};

const std::vector<SplitCase> Contents = {
    {u"", {}},
    {u"  ", {}},
    {u"\"a b\" attr(x) open-quote", {u"\"a b\"", u"attr(x)", u"open-quote"}},
    {u"\"a\"\t\n attr(title)", {u"\"a\"", u"attr(title)"}},
    {u"\"a\"\"b c\"", {u"\"a\"\"b c\""}},
    {u"attr( x )", {u"attr(", u"x", u")"}},
    // Single quotes guard no blank.
    {u"'a b'", {u"'a", u"b'"}},
    {u"\"it's\" 'x'", {u"\"it's\"", u"'x'"}},
    {u"\"a b", {u"\"a b"}},
    {u"\"a b ", {u"\"a b "}},
    {u"\"a\" !important", {u"\"a\"", u"!important"}},
};

TEST(GeneratedContent, TheStringsOfQuotesMakePairs) {
    for (const SplitCase& row : Quotes) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(GetQuotePairs(row.value), row.parts);
    }
}

TEST(GeneratedContent, BlanksOutsideOfStringsPartTheContent) {
    for (const SplitCase& row : Contents) {
        SCOPED_TRACE(Utf8FromText(row.value));
        EXPECT_EQ(GetContentValues(row.value), row.parts);
    }
}

TEST(GeneratedContent, NothingTakesLongerThanItsText) {
    EXPECT_EQ(GetQuotePairs(Text(1'000'000, u'"')).size(), 250'000U);
    EXPECT_EQ(GetContentValues(Text(1'000'000, u' ')).size(), 0U);
    EXPECT_EQ(GetContentValues(Text(1'000'001, u'"')).size(), 1U);
}

}  // namespace
}  // namespace tintora
