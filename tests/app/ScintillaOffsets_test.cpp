#include "editor/qt/ScintillaOffsets.h"

#include "text/Encoding.h"

#include <Qsci/qsciscintilla.h>
#include <gtest/gtest.h>

namespace tintora {
namespace {

const Texts Samples = {
    u"", u"a", u"\n", u"ab\ncd\r\nef\rgh", u"\u00e9\u4e2d\U0001f600x\n\U0001f600\u00e9", Text(u"a\0b\n\0", 5),
};

TEST(ScintillaOffsets, TextAndOffsetsComeBackAsTheyWere) {
    for (const Text& text : Samples) {
        SCOPED_TRACE(Utf8FromText(text));
        QsciScintilla control;
        control.setUtf8(true);
        KeepCodeUnitIndex(control);
        LoadControlText(control, text);
        EXPECT_EQ(ControlText(control), text);
        EXPECT_FALSE(control.isModified());
        EXPECT_FALSE(control.isUndoAvailable());
        for (int offset = 0; offset <= static_cast<int>(text.size()); ++offset) {
            const bool isInsideOfPair = offset > 0 && offset < static_cast<int>(text.size()) &&
                                        (text[static_cast<std::size_t>(offset)] & 0xFC00) == 0xDC00;
            if (!isInsideOfPair) {
                EXPECT_EQ(CodeUnitOffset(control, BytePosition(control, offset)), offset);
            }
        }
        EXPECT_EQ(CodeUnitOffset(control, BytePosition(control, 1000)), static_cast<int>(text.size()));
        EXPECT_EQ(BytePosition(control, -1), 0);
    }
}

}  // namespace
}  // namespace tintora
