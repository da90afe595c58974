#pragma once

#include "SourceViewTest.h"

/// The text control's contract: what is loaded, and how it is read.
namespace tintora::test {

template <typename Maker>
class SourceViewText : public SourceViewTest<Maker> {};

TYPED_TEST_SUITE_P(SourceViewText);

struct LoadCase {
    Text text;
    int rows;
};

inline const std::vector<LoadCase>& LoadCases() {
    using namespace std::string_literals;
    static const std::vector<LoadCase> cases = {
        {u"", 1},
        {u"a", 1},
        {u"a {}\nb {}\n", 3},
        {u"a {}\r\nb {}\r\n", 3},
        {u"a {}\rb {}\r", 3},
        {u"a\r\nb\rc\nd\n\re\r\r\nf", 8},
        {u"\r\n\r\n", 3},
        {u"a\0b\n\0\n"s, 3},
        {u"\U0001F600 {\n\t\u00E9: \u4E2D;\n}\U0010FFFF", 3},
        {u"\uFEFFa {}", 1},
        {u"a\u0085b\u2028c\u2029d\fe\vf", 1},
        {Text(32767, u'\n'), 32768},
        {Text(32767, u'\r'), 32768},
        {Text(32767, u'x'), 1},
    };
    return cases;
}

TYPED_TEST_P(SourceViewText, WhatIsLoadedIsWhatIsRead) {
    for (const LoadCase& row : LoadCases()) {
        SCOPED_TRACE(Utf8FromText(row.text.substr(0, 30)));
        this->View().SetText(row.text);
        EXPECT_TRUE(this->View().GetText() == row.text);
        EXPECT_EQ(this->Buffer().NumLines(), row.rows);
    }
}

TYPED_TEST_P(SourceViewText, EachRowHasItsTextItsLengthsAndItsStart) {
    for (const LoadCase& row : LoadCases()) {
        SCOPED_TRACE(Utf8FromText(row.text.substr(0, 30)));
        this->View().SetText(row.text);
        const std::vector<PlainRow> plainRows = RowsOf(row.text);
        ASSERT_EQ(this->Buffer().NumLines(), std::ssize(plainRows));
        for (int index = 0; index < std::ssize(plainRows); ++index) {
            const PlainRow& plain = plainRows[static_cast<std::size_t>(index)];
            ASSERT_TRUE(this->Buffer().GetLine(index) == plain.text) << index;
            ASSERT_EQ(this->Buffer().GetLineLength(index), std::ssize(plain.text)) << index;
            ASSERT_EQ(this->Buffer().GetTrueLineLength(index), std::ssize(plain.text) + std::ssize(plain.lineEnd))
                << index;
            ASSERT_EQ(this->Buffer().GetLineStart(index), plain.start) << index;
        }
    }
}

TYPED_TEST_P(SourceViewText, EachOffsetLiesInOneRowItsLineEndIncluded) {
    for (const LoadCase& row : LoadCases()) {
        if (row.text.size() > 100)
            continue;
        SCOPED_TRACE(Utf8FromText(row.text));
        this->View().SetText(row.text);
        for (int index = 0; index < this->Buffer().NumLines(); ++index) {
            for (int at = 0; at < this->Buffer().GetTrueLineLength(index); ++at)
                EXPECT_EQ(this->Buffer().GetRowAt(this->Buffer().GetLineStart(index) + at), index);
        }
    }
}

TYPED_TEST_P(SourceViewText, AnOffsetOutsideOfTheTextLiesInItsFirstOrLastRow) {
    this->View().SetText(u"a\nb\nc");
    EXPECT_EQ(this->Buffer().GetRowAt(5), 2);
    EXPECT_EQ(this->Buffer().GetRowAt(6), 2);
    EXPECT_EQ(this->Buffer().GetRowAt(100000), 2);
    EXPECT_EQ(this->Buffer().GetRowAt(-1), 0);
    this->View().SetText(u"a\n");
    EXPECT_EQ(this->Buffer().GetRowAt(2), 1);
    EXPECT_EQ(this->Buffer().GetRowAt(3), 1);
    this->View().SetText(u"");
    EXPECT_EQ(this->Buffer().GetRowAt(0), 0);
    EXPECT_EQ(this->Buffer().GetRowAt(7), 0);
}

TYPED_TEST_P(SourceViewText, ARowThatIsNotThereIsEmptyAndStartsAtAnEndOfTheText) {
    this->View().SetText(u"ab\r\ncd");
    for (const int row : {-100, -1, 2, 3, 100000}) {
        SCOPED_TRACE(row);
        EXPECT_EQ(this->Buffer().GetLine(row), u"");
        EXPECT_EQ(this->Buffer().GetTrueLineLength(row), 0);
        EXPECT_EQ(this->Buffer().GetLineStart(row), row < 0 ? 0 : 6);
    }
}

TYPED_TEST_P(SourceViewText, ALoadedTextTakesThePlaceOfTheOneBefore) {
    this->View().SetText(u"a\nb\nc");
    this->View().SetText(u"x\r\ny");
    EXPECT_EQ(this->View().GetText(), u"x\r\ny");
    EXPECT_EQ(this->Buffer().NumLines(), 2);
    this->View().SetText(u"");
    EXPECT_EQ(this->View().GetText(), u"");
    EXPECT_EQ(this->Buffer().NumLines(), 1);
}

TYPED_TEST_P(SourceViewText, TheDataOfARowStaysUntilItIsSetAnew) {
    this->View().SetText(u"a\nb\nc");
    EXPECT_EQ(this->Buffer().GetLineData(1, 0), 0);
    this->Buffer().SetLineData(1, 0, 512 + 7);
    EXPECT_EQ(this->Buffer().GetLineData(0, 0), 0);
    EXPECT_EQ(this->Buffer().GetLineData(1, 0), 512 + 7);
    EXPECT_EQ(this->Buffer().GetLineData(2, 0), 0);
    this->Buffer().SetLineData(1, 0, 0);
    EXPECT_EQ(this->Buffer().GetLineData(1, 0), 0);
}

TYPED_TEST_P(SourceViewText, TheRowsOfALoadedTextHaveNoDataYet) {
    this->View().SetText(u"a\nb\nc");
    for (const int row : {0, 1, 2})
        this->Buffer().SetLineData(row, 0, 512);
    this->View().SetText(u"d\ne\nf");
    for (const int row : {0, 1, 2})
        EXPECT_EQ(this->Buffer().GetLineData(row, 0), 0) << row;
}

REGISTER_TYPED_TEST_SUITE_P(SourceViewText, WhatIsLoadedIsWhatIsRead, EachRowHasItsTextItsLengthsAndItsStart,
                            EachOffsetLiesInOneRowItsLineEndIncluded, AnOffsetOutsideOfTheTextLiesInItsFirstOrLastRow,
                            ARowThatIsNotThereIsEmptyAndStartsAtAnEndOfTheText, ALoadedTextTakesThePlaceOfTheOneBefore,
                            TheDataOfARowStaysUntilItIsSetAnew, TheRowsOfALoadedTextHaveNoDataYet);

}  // namespace tintora::test
