#include "text/LowerCase.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace tintora {
namespace {

using namespace std::string_view_literals;

/// Every `step`-th unit from `first` through `last` has its lower case `distance` units further on.
struct CapitalRange {
    unsigned first;
    unsigned last;
    unsigned step;
    int distance;
};

/// All units that change. The others stay as they are.
constexpr auto Capitals = std::to_array<CapitalRange>({
    // Basic Latin and Latin-1, without the multiplication sign.
    {0x0041, 0x005A, 1, 32},
    {0x00C0, 0x00D6, 1, 32},
    {0x00D8, 0x00DE, 1, 32},

    // Latin Extended-A, without the capital I with a dot.
    {0x0100, 0x012E, 2, 1},
    {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},
    {0x0178, 0x0178, 1, -121},
    {0x0179, 0x017D, 2, 1},

    // Greek.
    {0x0370, 0x0372, 2, 1},
    {0x0376, 0x0376, 1, 1},
    {0x037F, 0x037F, 1, 116},
    {0x0386, 0x0386, 1, 38},
    {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64},
    {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32},
    {0x03CF, 0x03CF, 1, 8},
    {0x03D8, 0x03EE, 2, 1},
    {0x03F4, 0x03F4, 1, -60},
    {0x03F7, 0x03F7, 1, 1},
    {0x03F9, 0x03F9, 1, -7},
    {0x03FA, 0x03FA, 1, 1},
    {0x03FD, 0x03FF, 1, -130},

    // Cyrillic.
    {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32},
    {0x0460, 0x0480, 2, 1},
    {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 15},
    {0x04C1, 0x04CD, 2, 1},
    {0x04D0, 0x04FE, 2, 1},
});

/// Units next to capitals, at the ends of blocks and outside of them, that are no capitals here.
constexpr TextView UnitsThatStay =
    u"\0@[`az{\x7F\x80\xBF\xD7\xDF\xFF\x0130\x0131\x0138\x0149\x017F\x0180\x0181\x0187\x024F\x036F\x0371\x0378\x0380"
    u"\x0387\x038B\x038D\x0390\x03A2\x03AC\x03B1\x03D0\x03D2\x03F5\x03FC\x0430\x0482\x0489\x04CF\x04FF\x0500\x0531"
    u"\x10A0\x1E00\x1E9E\x2126\x212A\x212B\x2160\x24B6\xA640\xD800\xDC00\xDFFF\xFEFF\xFF21\xFFFF"sv;

struct LowerCaseCase {
    TextView text;
    TextView lower;
};

constexpr auto LowerCaseCases = std::to_array<LowerCaseCase>({
    {u"", u""},
    {u"MARGIN", u"margin"},
    {u"Border-Top-WIDTH", u"border-top-width"},
    {u"already low 123 !;{}", u"already low 123 !;{}"},
    {u"\0A\0"sv, u"\0a\0"sv},
    {u"\x00C4\x00D6\x00DC\x00DF", u"\x00E4\x00F6\x00FC\x00DF"},
    {u"\x0130STANBUL", u"\x0130stanbul"},
    {u"\x039F\x0394\x039F\x03A3", u"\x03BF\x03B4\x03BF\x03C3"},
    {u"\x0416\x0401\x04C0", u"\x0436\x0451\x04CF"},
    {u"\xD800X\xDC00", u"\xD800x\xDC00"},
    {u"\xD801\xDC00", u"\xD801\xDC00"},
});

struct PlaceCase {
    TextView text;
    TextView lowered;
    std::size_t from;
    std::size_t found;
};

constexpr std::size_t None = TextView::npos;

constexpr auto PlaceCases = std::to_array<PlaceCase>({
    {u"", u"a", 0, None},
    {u"a", u"ab", 0, None},
    {u"A", u"a", 0, 0},
    {u"A", u"a", 1, None},
    {u"A", u"a", 2, None},
    {u"A", u"a", None, None},
    {u"abABab", u"ab", 0, 0},
    {u"abABab", u"ab", 1, 2},
    {u"abABab", u"ab", 4, 4},
    {u"abABab", u"ab", 5, None},
    {u"aAaB", u"aab", 0, 1},
    {u"red !IMPORTANT", u"!import", 0, 4},
    {u"red !IMPOR", u"!import", 0, None},
    {u"x\x00C9\x0416", u"\x00E9\x0436", 0, 1},
    {u"a\0B"sv, u"\0b"sv, 0, 1},
});

char16_t ExpectedLowerCase(unsigned unit) {
    for (const CapitalRange& range : Capitals) {
        if (unit >= range.first && unit <= range.last && (unit - range.first) % range.step == 0)
            return static_cast<char16_t>(static_cast<int>(unit) + range.distance);
    }
    return static_cast<char16_t>(unit);
}

TEST(LowerCase, EveryUnitHasTheLowerCaseOfItsBlock) {
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
        EXPECT_EQ(LowerCaseUnit(static_cast<char16_t>(unit)), ExpectedLowerCase(unit)) << "U+" << std::hex << unit;
}

TEST(LowerCase, ALowerCaseUnitStays) {
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const char16_t lower = LowerCaseUnit(static_cast<char16_t>(unit));
        EXPECT_EQ(LowerCaseUnit(lower), lower) << "U+" << std::hex << unit;
    }
}

TEST(LowerCase, UnitsWithoutASingleLowerCaseUnitStay) {
    for (const char16_t unit : UnitsThatStay)
        EXPECT_EQ(LowerCaseUnit(unit), unit) << "U+" << std::hex << static_cast<unsigned>(unit);
}

TEST(LowerCase, ATextIsLoweredUnitByUnit) {
    for (const LowerCaseCase& row : LowerCaseCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(LowerCase(row.text), row.lower);
        EXPECT_TRUE(EqualsLowered(row.text, row.lower));
        EXPECT_TRUE(HasLoweredAt(row.text, 0, row.lower));
    }
}

TEST(LowerCase, EqualityNeedsTheSameLength) {
    EXPECT_FALSE(EqualsLowered(u"", u"a"));
    EXPECT_FALSE(EqualsLowered(u"A", u""));
    EXPECT_FALSE(EqualsLowered(u"NONE ", u"none"));
    EXPECT_FALSE(EqualsLowered(u"NON", u"none"));
    EXPECT_FALSE(EqualsLowered(u"NONA", u"none"));
}

TEST(LowerCase, NothingStandsBeyondTheEnd) {
    EXPECT_TRUE(HasLoweredAt(u"xRGB(", 1, u"rgb("));
    EXPECT_FALSE(HasLoweredAt(u"xRGB(", 2, u"rgb("));
    EXPECT_FALSE(HasLoweredAt(u"xRGB(", 5, u"rgb("));
    EXPECT_FALSE(HasLoweredAt(u"xRGB(", 6, u"rgb("));
    EXPECT_FALSE(HasLoweredAt(u"xRGB(", None, u"rgb("));
    EXPECT_TRUE(HasLoweredAt(u"x", 1, u""));
    EXPECT_FALSE(HasLoweredAt(u"x", 2, u""));
}

TEST(LowerCase, TheFirstPlaceAtOrAfterTheIndexIsFound) {
    for (const PlaceCase& row : PlaceCases) {
        SCOPED_TRACE(Utf8FromText(row.text));
        EXPECT_EQ(FindLowered(row.text, row.lowered, row.from), row.found);
    }
}

TEST(LowerCase, FindingAgreesWithASearchOfTheLoweredText) {
    std::mt19937 random(32);
    constexpr TextView Units = u"aAbB\x00C9\x00E9";
    const auto randomText = [&](std::size_t length) {
        Text text;
        for (std::size_t count = 0; count < length; ++count)
            text.push_back(Units[random() % Units.size()]);
        return text;
    };
    for (int round = 0; round < 20000; ++round) {
        const Text text = randomText(random() % 20U);
        const Text wanted = LowerCase(randomText(1 + random() % 3U));
        const std::size_t from = random() % 22U;
        SCOPED_TRACE(Utf8FromText(text + u" / " + wanted));
        ASSERT_EQ(FindLowered(text, wanted, from), LowerCase(text).find(wanted, from));
        ASSERT_EQ(HasLoweredAt(text, from, wanted),
                  from <= text.size() && LowerCase(text).compare(from, wanted.size(), wanted) == 0);
    }
}

}  // namespace
}  // namespace tintora
