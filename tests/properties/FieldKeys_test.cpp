#include "properties/FieldKeys.h"

#include "text/Text.h"

#include <gtest/gtest.h>
#include <string>

namespace tintora {
namespace {

struct FieldCase {
    FieldKey (*judge)(char16_t);
    TextView taken;
};

constexpr FieldCase Fields[] = {
    {LengthFieldKey, u"0123456789."},
    {HexFieldKey, u"0123456789abcdefABCDEF"},
    {RGBFieldKey, u"0123456789,.% "},
};

TEST(FieldKeys, AFieldTakesItsCharactersAndNoOthers) {
    for (const FieldCase& field : Fields) {
        for (unsigned value = u' '; value <= 0xFFFF; ++value) {
            const auto code = static_cast<char16_t>(value);
            if (code == 0x7F)
                continue;
            const bool isTaken = field.taken.find(code) != TextView::npos;
            ASSERT_EQ(field.judge(code), isTaken ? FieldKey::Passes : FieldKey::IsDropped) << value;
        }
    }
}

TEST(FieldKeys, KeysThatAreNoCharactersPass) {
    for (const FieldCase& field : Fields) {
        for (const char16_t code : {u'\b', u'\t', u'\n', u'\r', u'\x19', u'\x1A', u'\x1B', u'\0', u'\x7F'})
            EXPECT_EQ(field.judge(code), FieldKey::Passes) << static_cast<int>(code);
    }
}

TEST(FieldKeys, TheLengthFieldKnowsTheCodesOfTheClipboard) {
    EXPECT_EQ(LengthFieldKey(1), FieldKey::SelectsAll);
    EXPECT_EQ(LengthFieldKey(3), FieldKey::Copies);
    EXPECT_EQ(LengthFieldKey(22), FieldKey::Pastes);
    EXPECT_EQ(LengthFieldKey(24), FieldKey::Cuts);
    for (const char16_t code : {u'\x1', u'\x3', u'\x16', u'\x18'}) {
        EXPECT_EQ(HexFieldKey(code), FieldKey::Passes);
        EXPECT_EQ(RGBFieldKey(code), FieldKey::Passes);
    }
}

}  // namespace
}  // namespace tintora
