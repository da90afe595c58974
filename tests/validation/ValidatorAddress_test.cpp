#include "validation/ValidatorAddress.h"

#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct EncodingCase {
    TextView text;
    TextView encoded;
};

constexpr auto EncodingCases = std::to_array<EncodingCase>({
    {u"", u""},
    {u"a{color:red}", u"a%7Bcolor%3Ared%7D"},
    {u"%", u"%25"},
    {u"#", u"%23"},
    {u"{", u"%7B"},
    {u"}", u"%7D"},
    {u":", u"%3A"},
    {u";", u"%3B"},
    {u"/", u"%2F"},
    {u"*", u"%2A"},
    {u" ", u"%20"},
    // All that come one behind another, in both directions.
    {u"%#{}:;/* ", u"%25%23%7B%7D%3A%3B%2F%2A%20"},
    {u" */;:}{#%", u"%20%2A%2F%3B%3A%7D%7B%23%25"},
    // A percent sign is encoded once, also where it looks like an encoded character.
    {u"50%", u"50%25"},
    {u"%25", u"%2525"},
    {u"%7B", u"%257B"},
    {u"%%", u"%25%25"},
    {u"/* note */", u"%2F%2A%20note%20%2A%2F"},
    // Line ends stay, and so does all other white space.
    {u"a\nb", u"a\nb"},
    {u"a\rb", u"a\rb"},
    {u"a {\r\n}\r\n", u"a%20%7B\r\n%7D\r\n"},
    {u"\t\f\v\x00A0", u"\t\f\v\x00A0"},
    // So does what means something in a query.
    {u"a&b+c=d?e", u"a&b+c=d?e"},
    {u"&amp;", u"&amp%3B"},
    {u"!\"$'(),-.<>@[\\]^_`|~", u"!\"$'(),-.<>@[\\]^_`|~"},
    {u"AZaz09", u"AZaz09"},
    // Nothing outside of ASCII is touched: letters, pairs, halves of pairs, a byte order mark, and NUL.
    {u"\x00E9\x4E2D", u"\x00E9\x4E2D"},
    {u"\xD83D\xDE00", u"\xD83D\xDE00"},
    {u"\xDE00\xD83D", u"\xDE00\xD83D"},
    {u"\xFEFF#", u"\xFEFF%23"},
    {u"\0#\0"sv, u"\0%23\0"sv},
    {u"\xFF05\xFF03\xFF0A", u"\xFF05\xFF03\xFF0A"},
});

struct AddressCase {
    TextView styleSheet;
    TextView address;
};

constexpr auto AddressCases = std::to_array<AddressCase>({
    {u"", u"https://jigsaw.w3.org/css-validator/validator?text=&warning=1&profile=css2&usermedium=all"},
    {u"a{color:red}",
     u"https://jigsaw.w3.org/css-validator/validator?text=a%7Bcolor%3Ared%7D&warning=1&profile=css2&usermedium=all"},
    {u"a\r\n&b", u"https://jigsaw.w3.org/css-validator/validator?text=a\r\n&b&warning=1&profile=css2&usermedium=all"},
});

TEST(ValidatorAddress, ATextIsEncodedAsTheCasesSay) {
    for (const EncodingCase& row : EncodingCases)
        EXPECT_EQ(EncodeForURL(row.text), row.encoded) << Utf8FromText(row.text);
}

TEST(ValidatorAddress, CarriesTheEncodedTextBetweenItsTwoFixedParts) {
    for (const AddressCase& row : AddressCases)
        EXPECT_EQ(ValidatorAddress(row.styleSheet), row.address) << Utf8FromText(row.styleSheet);
}

TEST(ValidatorAddress, TheFormIsAPageOfTheSameValidator) {
    const TextView folder = u"https://jigsaw.w3.org/css-validator/";
    EXPECT_TRUE(ValidatorFormAddress.starts_with(folder));
    EXPECT_TRUE(TextView(ValidatorAddress({})).starts_with(folder));
}

/// One replacement after another, each over the whole of what the one before it has left.
Text EncodedStepByStep(Text text) {
    constexpr std::array<std::pair<char16_t, TextView>, 9> Steps = {{{u'%', u"%25"},
                                                                     {u'#', u"%23"},
                                                                     {u'{', u"%7B"},
                                                                     {u'}', u"%7D"},
                                                                     {u':', u"%3A"},
                                                                     {u';', u"%3B"},
                                                                     {u'/', u"%2F"},
                                                                     {u'*', u"%2A"},
                                                                     {u' ', u"%20"}}};
    for (const auto& [unit, replacement] : Steps) {
        for (std::size_t at = text.find(unit); at != Text::npos; at = text.find(unit, at + replacement.size()))
            text.replace(at, 1, replacement);
    }
    return text;
}

TEST(ValidatorAddress, OneScanGivesWhatNineReplacementsOneAfterAnotherGive) {
    constexpr TextView Alphabet = u"%#{}:;/* 250FBa\n&";
    std::mt19937 random(11);
    std::uniform_int_distribution<std::size_t> letters(0, Alphabet.size() - 1);
    std::uniform_int_distribution<std::size_t> lengths(0, 40);
    for (int round = 0; round < 2000; ++round) {
        Text text(lengths(random), u' ');
        for (char16_t& unit : text)
            unit = Alphabet[letters(random)];
        ASSERT_EQ(EncodeForURL(text), EncodedStepByStep(text)) << Utf8FromText(text);
    }
}

TEST(ValidatorAddress, TheLengthOfAStyleSheetIsNotChecked) {
    constexpr std::size_t LengthOfRest = TextView(u"https://jigsaw.w3.org/css-validator/validator?text=").size() +
                                         TextView(u"&warning=1&profile=css2&usermedium=all").size();
    for (const std::size_t length : {MaximumTextLength, MaximumTextLength + 1, 3 * MaximumTextLength})
        EXPECT_EQ(ValidatorAddress(Text(length, u'{')).size(), 3 * length + LengthOfRest);
}

}  // namespace
}  // namespace tintora
