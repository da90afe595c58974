#include "editor/qt/ScintillaOffsets.h"

#include "text/Encoding.h"

#include <Qsci/qsciscintilla.h>
#include <gtest/gtest.h>

namespace tintora {
namespace {

const Texts Samples = {
    u"",
    u"a",
    u"\n",
    u"ab\ncd\r\nef\rgh",
    u"\u00e9\u4e2d\U0001f600x\n\U0001f600\u00e9",
    u"\U0010ffff\ufffe\ufdd0x\n\uffff",  // Characters that are none, but valid UTF-8.
    Text(u"a\0b\n\0", 5),
};

TEST(ScintillaOffsets, TextAndOffsetsComeBackAsTheyWere) {
    for (const Text& text : Samples) {
        SCOPED_TRACE(Utf8FromText(text));
        QsciScintilla control;
        UseUtf8(control);
        LoadControlText(control, text);
        ScintillaOffsets offsets(control);
        offsets.Reset();
        EXPECT_EQ(ControlText(control), text);
        EXPECT_FALSE(control.isModified());
        EXPECT_FALSE(control.isUndoAvailable());
        for (int offset = 0; offset <= static_cast<int>(text.size()); ++offset) {
            const bool isInsideOfPair = offset > 0 && offset < static_cast<int>(text.size()) &&
                                        (text[static_cast<std::size_t>(offset)] & 0xFC00) == 0xDC00;
            EXPECT_EQ(offsets.OffsetOf(offsets.BytePosition(offset)), isInsideOfPair ? offset - 1 : offset);
        }
        EXPECT_EQ(offsets.OffsetOf(offsets.BytePosition(1000)), static_cast<int>(text.size()));
        EXPECT_EQ(offsets.BytePosition(-1), 0);
    }
}

TEST(ScintillaOffsets, UnitsAreCountedByTheirFirstBytes) {
    EXPECT_EQ(CodeUnitsIn(""), 0);
    EXPECT_EQ(CodeUnitsIn("ab"), 2);
    EXPECT_EQ(CodeUnitsIn("\xc3\xa9"), 1);
    EXPECT_EQ(CodeUnitsIn("\xe4\xb8\xad"), 1);
    EXPECT_EQ(CodeUnitsIn("\xf0\x9f\x98\x80"), 2);
}

}  // namespace
}  // namespace tintora
