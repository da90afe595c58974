#include "SourceViewContract.h"

namespace tintora::test {

class MemoryMaker {
  public:
    [[nodiscard]] SourceView& View() { return view_; }
    [[nodiscard]] Clipboard& Clip() { return clipboard_; }

  private:
    MemoryClipboard clipboard_;
    MemorySourceView view_{clipboard_};
};

TINTORA_TEST_SOURCE_VIEW(Memory, MemoryMaker);

namespace {

/// The acts of a user, which only this control has as calls.
class MemorySourceViewTest : public ::testing::Test {
  protected:
    void Type(TextView text) {
        for (const char16_t unit : text)
            view_.TypeCharacter(unit);
    }

    MemoryClipboard clipboard_;
    MemorySourceView view_{clipboard_};
};

TEST_F(MemorySourceViewTest, ATypedCharacterTakesThePlaceOfTheSelection) {
    PutDrawn(view_, u"a^bc|d");
    Type(u"x");
    EXPECT_EQ(Drawn(view_), u"ax|d");
    Type(u"y");
    EXPECT_EQ(Drawn(view_), u"axy|d");
}

TEST_F(MemorySourceViewTest, TheEnterKeyPutsInTheDocumentsLineEnd) {
    PutDrawn(view_, u"a\r\nb|");
    Type(u"\n");
    EXPECT_EQ(Drawn(view_), u"a\r\nb\r\n|");
    PutDrawn(view_, u"b|");
    Type(u"\r");
    EXPECT_EQ(Drawn(view_), u"b\n|");
}

TEST_F(MemorySourceViewTest, BackspaceTakesWhatStandsInFrontAndDeleteWhatStandsBehind) {
    PutDrawn(view_, u"ab|cd");
    view_.PressBackspace();
    EXPECT_EQ(Drawn(view_), u"a|cd");
    view_.PressDelete();
    EXPECT_EQ(Drawn(view_), u"a|d");
    PutDrawn(view_, u"a|bc^d");
    view_.PressBackspace();
    EXPECT_EQ(Drawn(view_), u"a|d");
    PutDrawn(view_, u"a^bc|d");
    view_.PressDelete();
    EXPECT_EQ(Drawn(view_), u"a|d");
}

TEST_F(MemorySourceViewTest, AtTheEndsOfTheTextThereIsNothingToTake) {
    PutDrawn(view_, u"|ab");
    view_.PressBackspace();
    EXPECT_EQ(Drawn(view_), u"|ab");
    PutDrawn(view_, u"ab|");
    view_.PressDelete();
    EXPECT_EQ(Drawn(view_), u"ab|");
    EXPECT_FALSE(view_.Buffer().CanUndo());
}

TEST_F(MemorySourceViewTest, TheCaretIsMovedIntoTheTextAndNoFurther) {
    PutDrawn(view_, u"^ab|\ncd");
    view_.MoveCaret(4);
    EXPECT_EQ(Drawn(view_), u"ab\nc|d");
    view_.MoveCaret(99);
    EXPECT_EQ(Drawn(view_), u"ab\ncd|");
    view_.MoveCaret(-1);
    EXPECT_EQ(Drawn(view_), u"|ab\ncd");
}

TEST_F(MemorySourceViewTest, WithoutAScannerThereAreNoTokens) {
    view_.SetText(u"a {}");
    EXPECT_EQ(view_.GetTokenInfo(0, 0), TokenInfo());
    EXPECT_EQ(view_.ScannedRows(), 0);
}

TEST_F(MemorySourceViewTest, ItsCellsAreOnePixelSquare) {
    EXPECT_EQ(view_.CharWidth(), 1);
    EXPECT_EQ(view_.LineHeight(), 1);
    EXPECT_EQ(view_.PositionToPixels(3, 5).x, 3);
    EXPECT_EQ(view_.PositionToPixels(3, 5).y, 5);
}

}  // namespace
}  // namespace tintora::test
