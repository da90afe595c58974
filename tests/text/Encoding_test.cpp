#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

struct SameInUtf8 {
    std::string_view bytes;
    TextView text;
};

/// Bytes and text that answer each other in every direction.
constexpr auto ValidUtf8 = std::to_array<SameInUtf8>({
    {"", u""},
    {"a { color: red }", u"a { color: red }"},
    {"\r\n\n\r\t\f", u"\r\n\n\r\t\f"},
    {"\0"sv, u"\0"sv},
    {"a\0b"sv, u"a\0b"sv},
    {"\x01\x1F\x7F", u"\x01\x1F\x7F"},
    {"\xEF\xBB\xBF", u"\xFEFF"},
    {"\xEF\xBB\xBF"
     "a",
     u"\xFEFF"
     u"a"},
    {"\xC2\x80", u"\x0080"},
    {"\xC3\xA9", u"\x00E9"},
    {"\xDF\xBF", u"\x07FF"},
    {"\xE0\xA0\x80", u"\x0800"},
    {"\xE2\x82\xAC", u"\x20AC"},
    {"\xED\x9F\xBF", u"\xD7FF"},
    {"\xEE\x80\x80", u"\xE000"},
    {"\xEF\xBF\xBD", u"\xFFFD"},
    {"\xEF\xBF\xBF", u"\xFFFF"},
    {"\xF0\x90\x80\x80", u"\xD800\xDC00"},
    {"\xF0\x9F\x98\x80", u"\xD83D\xDE00"},
    {"\xF4\x8F\xBF\xBF", u"\xDBFF\xDFFF"},
});

struct BrokenUtf8 {
    std::string_view bytes;
    TextView windows1252;
    TextView shown;
    TextView fileName;
};

constexpr auto InvalidUtf8 = std::to_array<BrokenUtf8>({
    // Bytes that never begin a character.
    {"\x80", u"\x20AC", u"\xFFFD", u"\xDC80"},
    {"\xBF", u"\x00BF", u"\xFFFD", u"\xDCBF"},
    {"\xC0", u"\x00C0", u"\xFFFD", u"\xDCC0"},
    {"\xF5\x80\x80\x80", u"\x00F5\x20AC\x20AC\x20AC", u"\xFFFD\xFFFD\xFFFD\xFFFD", u"\xDCF5\xDC80\xDC80\xDC80"},
    {"\xF8", u"\x00F8", u"\xFFFD", u"\xDCF8"},
    {"\xFE", u"\x00FE", u"\xFFFD", u"\xDCFE"},
    {"\xFF", u"\x00FF", u"\xFFFD", u"\xDCFF"},

    // Longer than need be.
    {"\xC0\x80", u"\x00C0\x20AC", u"\xFFFD\xFFFD", u"\xDCC0\xDC80"},
    {"\xC1\xBF", u"\x00C1\x00BF", u"\xFFFD\xFFFD", u"\xDCC1\xDCBF"},
    {"\xE0\x80\x80", u"\x00E0\x20AC\x20AC", u"\xFFFD\xFFFD\xFFFD", u"\xDCE0\xDC80\xDC80"},
    {"\xE0\x9F\xBF", u"\x00E0\x0178\x00BF", u"\xFFFD\xFFFD\xFFFD", u"\xDCE0\xDC9F\xDCBF"},
    {"\xF0\x80\x80\x80", u"\x00F0\x20AC\x20AC\x20AC", u"\xFFFD\xFFFD\xFFFD\xFFFD", u"\xDCF0\xDC80\xDC80\xDC80"},
    {"\xF0\x8F\xBF\xBF", u"\x00F0\x008F\x00BF\x00BF", u"\xFFFD\xFFFD\xFFFD\xFFFD", u"\xDCF0\xDC8F\xDCBF\xDCBF"},

    // Surrogates, alone and as a pair.
    {"\xED\xA0\x80", u"\x00ED\x00A0\x20AC", u"\xFFFD\xFFFD\xFFFD", u"\xDCED\xDCA0\xDC80"},
    {"\xED\xBF\xBF", u"\x00ED\x00BF\x00BF", u"\xFFFD\xFFFD\xFFFD", u"\xDCED\xDCBF\xDCBF"},
    {"\xED\xA0\x80\xED\xB0\x80", u"\x00ED\x00A0\x20AC\x00ED\x00B0\x20AC", u"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD",
     u"\xDCED\xDCA0\xDC80\xDCED\xDCB0\xDC80"},

    // Beyond the last character.
    {"\xF4\x90\x80\x80", u"\x00F4\x0090\x20AC\x20AC", u"\xFFFD\xFFFD\xFFFD\xFFFD", u"\xDCF4\xDC90\xDC80\xDC80"},

    // Cut off by the end, by another character, by NUL.
    {"\xC3", u"\x00C3", u"\xFFFD", u"\xDCC3"},
    {"\xE2\x82", u"\x00E2\x201A", u"\xFFFD\xFFFD", u"\xDCE2\xDC82"},
    {"\xF0\x9F\x98", u"\x00F0\x0178\x02DC", u"\xFFFD\xFFFD\xFFFD", u"\xDCF0\xDC9F\xDC98"},
    {"\xC3(", u"\x00C3(", u"\xFFFD(", u"\xDCC3("},
    {"\xE2\x82(", u"\x00E2\x201A(", u"\xFFFD\xFFFD(", u"\xDCE2\xDC82("},
    {"\xC3\0"sv, u"\x00C3\0"sv, u"\xFFFD\0"sv, u"\xDCC3\0"sv},
    {"\xE2\xC3\xA9", u"\x00E2\x00C3\x00A9", u"\xFFFD\x00E9", u"\xDCE2\x00E9"},

    // One bad byte decides about the whole file, but not about a whole name or message.
    {"(\xC3\xA9\xFF)", u"(\x00C3\x00A9\x00FF)", u"(\x00E9\xFFFD)", u"(\x00E9\xDCFF)"},
});

struct CantBeEncoded {
    TextView text;
    Encoding encoding;
};

constexpr auto EncodeFailures = std::to_array<CantBeEncoded>({
    {u"\xD800", Encoding::Utf8},
    {u"\xDBFF", Encoding::Utf8},
    {u"\xDC00", Encoding::Utf8},
    {u"\xDFFF", Encoding::Utf8},
    {u"\xDC00\xD800", Encoding::Utf8},
    {u"\xD800\xD800\xDC00", Encoding::Utf8},
    {u"(\xD800)", Encoding::Utf8},
    {u"\xD800\xDC00\xDC00", Encoding::Utf8},
    {u"\x0080", Encoding::Windows1252},
    {u"\x0085", Encoding::Windows1252},
    {u"\x009F", Encoding::Windows1252},
    {u"\x0100", Encoding::Windows1252},
    {u"\x20AD", Encoding::Windows1252},
    {u"\xFEFF", Encoding::Windows1252},
    {u"\xFFFD", Encoding::Windows1252},
    {u"\xD83D\xDE00", Encoding::Windows1252},
    {u"\xD800", Encoding::Windows1252},
    {u"good, then \x03B1", Encoding::Windows1252},
});

struct LoneSurrogates {
    TextView text;
    std::string_view shown;
    std::string_view fileName;
};

constexpr auto SurrogatesAlone = std::to_array<LoneSurrogates>({
    {u"\xD800", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
    {u"a\xDBFF!", "a\xEF\xBF\xBD!", "a\xEF\xBF\xBD!"},
    {u"\xDC80", "\xEF\xBF\xBD", "\x80"},
    {u"\xDCFF", "\xEF\xBF\xBD", "\xFF"},
    {u"\xDC2F", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
    {u"\xDC7F", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
    {u"\xDD00", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
    {u"\xDCC3\xDCA9", "\xEF\xBF\xBD\xEF\xBF\xBD", "\xC3\xA9"},
    {u"\xD83D\xDE00\xDCFF", "\xF0\x9F\x98\x80\xEF\xBF\xBD", "\xF0\x9F\x98\x80\xFF"},
});

/// What the bytes 0x80 to 0x9F are in windows-1252.
constexpr TextView UpperControls =
    u"\x20AC\x0081\x201A\x0192\x201E\x2026\x2020\x2021\x02C6\x2030\x0160\x2039\x0152\x008D\x017D\x008F"
    u"\x0090\x2018\x2019\x201C\x201D\x2022\x2013\x2014\x02DC\x2122\x0161\x203A\x0153\x009D\x017E\x0178";

char ByteOf(unsigned value) { return static_cast<char>(static_cast<unsigned char>(value)); }

/// Random bytes: single ones of any value between characters of valid UTF-8, of which some have lost their last byte.
std::string RandomBytes(std::mt19937& random) {
    const std::size_t length = random() % 24U;
    const bool isValid = random() % 4U == 0;
    std::string bytes;
    for (std::size_t count = 0; count < length; ++count) {
        if (!isValid && random() % 3U == 0) {
            bytes.push_back(ByteOf(random() % 256U));
            continue;
        }
        bytes += ValidUtf8[random() % ValidUtf8.size()].bytes;
        if (!isValid && !bytes.empty() && random() % 4U == 0)
            bytes.pop_back();
    }
    return bytes;
}

TEST(Encoding, ValidUtf8IsReadAsItIs) {
    for (const SameInUtf8& row : ValidUtf8) {
        SCOPED_TRACE(Utf8FromText(row.text));
        const DecodedText decoded = DecodeBytes(row.bytes);
        EXPECT_EQ(decoded.text, row.text);
        EXPECT_EQ(decoded.encoding, Encoding::Utf8);
        EXPECT_EQ(TextFromUtf8(row.bytes), row.text);
        EXPECT_EQ(TextFromFileName(row.bytes), row.text);
    }
}

TEST(Encoding, TextIsWrittenAsUtf8) {
    for (const SameInUtf8& row : ValidUtf8) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(EncodeText(row.text, Encoding::Utf8), std::string(row.bytes));
        EXPECT_EQ(Utf8FromText(row.text), row.bytes);
        EXPECT_EQ(FileNameFromText(row.text), row.bytes);
    }
}

TEST(Encoding, BytesThatAreNotUtf8AreReadAsWindows1252) {
    for (const BrokenUtf8& row : InvalidUtf8) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        const DecodedText decoded = DecodeBytes(row.bytes);
        EXPECT_EQ(decoded.text, row.windows1252);
        EXPECT_EQ(decoded.encoding, Encoding::Windows1252);
        EXPECT_EQ(EncodeText(decoded.text, decoded.encoding), std::string(row.bytes));
    }
}

TEST(Encoding, EachBadByteOfAMessageIsAReplacementCharacter) {
    for (const BrokenUtf8& row : InvalidUtf8) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        EXPECT_EQ(TextFromUtf8(row.bytes), row.shown);
    }
}

TEST(Encoding, EachBadByteOfAFileNameComesBack) {
    for (const BrokenUtf8& row : InvalidUtf8) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        EXPECT_EQ(TextFromFileName(row.bytes), row.fileName);
        EXPECT_EQ(FileNameFromText(row.fileName), row.bytes);
    }
}

TEST(Encoding, ALoneSurrogateIsShownAsAReplacementCharacter) {
    for (const LoneSurrogates& row : SurrogatesAlone) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(Utf8FromText(row.text), row.shown);
        EXPECT_EQ(FileNameFromText(row.text), row.fileName);
    }
}

TEST(Encoding, TextThatTheEncodingLacksGivesNothing) {
    for (const CantBeEncoded& row : EncodeFailures) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(EncodeText(row.text, row.encoding), std::nullopt);
    }
}

TEST(Encoding, EveryByteIsOneCharacterOfWindows1252) {
    std::string bytes;
    Text text;
    for (unsigned value = 0; value < 256; ++value) {
        bytes.push_back(ByteOf(value));
        text.push_back(value >= 0x80 && value <= 0x9F ? UpperControls[value - 0x80] : static_cast<char16_t>(value));
    }
    const DecodedText decoded = DecodeBytes(bytes);
    EXPECT_EQ(decoded.encoding, Encoding::Windows1252);
    EXPECT_EQ(decoded.text, text);
    EXPECT_EQ(EncodeText(text, Encoding::Windows1252), bytes);
}

TEST(Encoding, Windows1252HasBytesForExactlyItsCharacters) {
    std::size_t encodable = 0;
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const auto unit = static_cast<char16_t>(value);
        const bool expected =
            value < 0x80 || (value >= 0xA0 && value <= 0xFF) || UpperControls.find(unit) != TextView::npos;
        ASSERT_EQ(EncodeText(TextView(&unit, 1), Encoding::Windows1252).has_value(), expected) << value;
        encodable += expected ? 1 : 0;
    }
    EXPECT_EQ(encodable, 256U);
}

TEST(Encoding, EveryUnitButASurrogateGoesThroughUtf8AndBack) {
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const Text text(1, static_cast<char16_t>(value));
        const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
        const std::optional<std::string> bytes = EncodeText(text, Encoding::Utf8);
        ASSERT_EQ(bytes.has_value(), !isSurrogate) << value;
        if (bytes) {
            ASSERT_EQ(DecodeBytes(*bytes).text, text);
        }
    }
}

TEST(Encoding, AnyBytesComeBackAsTheyWere) {
    std::mt19937 random(1252);
    std::size_t inUtf8 = 0;
    constexpr std::size_t Rounds = 20000;
    for (std::size_t round = 0; round < Rounds; ++round) {
        const std::string bytes = RandomBytes(random);
        const DecodedText decoded = DecodeBytes(bytes);
        ASSERT_EQ(EncodeText(decoded.text, decoded.encoding), bytes);
        inUtf8 += decoded.encoding == Encoding::Utf8 ? 1 : 0;
    }
    EXPECT_GT(inUtf8, Rounds / 10);
    EXPECT_LT(inUtf8, Rounds * 9 / 10);
}

TEST(Encoding, AnyFileNameComesBackAsItWas) {
    std::mt19937 random(8);
    for (int round = 0; round < 20000; ++round) {
        const std::string bytes = RandomBytes(random);
        ASSERT_EQ(FileNameFromText(TextFromFileName(bytes)), bytes);
    }
}

}  // namespace
}  // namespace tintora
