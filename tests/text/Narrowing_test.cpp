#include "text/Narrowing.h"

#include "text/Text.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

namespace tintora {
namespace {

constexpr auto NumbersThatFit = std::to_array<long long>({0, 1, -1, 32766, 32767, -32767, -32768});

constexpr auto NumbersThatDoNotFit =
    std::to_array<long long>({32768, 32769, 65535, 65536, 4294967296, std::numeric_limits<long long>::max(), -32769,
                              -65536, -4294967296, std::numeric_limits<long long>::min()});

TEST(Narrowing, ANumberOfSixteenBitsStaysAsItIs) {
    for (const long long number : NumbersThatFit)
        EXPECT_EQ(Narrow(number), number);
}

TEST(Narrowing, AnyOtherNumberFailsAndIsNamed) {
    for (const long long number : NumbersThatDoNotFit) {
        SCOPED_TRACE(number);
        try {
            static_cast<void>(Narrow(number));
            ADD_FAILURE() << "no failure";
        } catch (const OverflowFailure& failure) {
            EXPECT_EQ(failure.Value(), number);
            EXPECT_NE(std::string(failure.what()).find(std::to_string(number)), std::string::npos);
        }
    }
}

TEST(Narrowing, ATextUpToTheLimitHasALength) {
    EXPECT_EQ(NarrowLength(Text()), 0);
    EXPECT_EQ(NarrowLength(TextView(u"abc")), 3);
    EXPECT_EQ(NarrowLength(Text(32767, u'x')), 32767);
    EXPECT_EQ(MaximumTextLength, 32767U);
}

TEST(Narrowing, ATextBeyondTheLimitFails) {
    EXPECT_THROW(NarrowLength(Text(32768, u'x')), OverflowFailure);
    EXPECT_THROW(NarrowLength(Text(65536, u'x')), OverflowFailure);
    EXPECT_THROW(NarrowLength(Text(65537, u'x')), OverflowFailure);
}

TEST(Narrowing, TheFailureIsAnOverflow) { EXPECT_THROW(NarrowLength(Text(40120, u' ')), std::overflow_error); }

}  // namespace
}  // namespace tintora
