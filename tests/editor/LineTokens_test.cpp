#include "editor/LineTokens.h"

#include "DrawnTokens.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

namespace tintora::test {
namespace {

/// Rows with their data, and nothing else.
class PlainRows final : public LexBuffer {
  public:
    explicit PlainRows(Texts rows) : rows_(std::move(rows)), data_(rows_.size(), 0) {}

    [[nodiscard]] std::int32_t GetLineLength(std::int32_t row) const override {
        return static_cast<std::int32_t>(At(row).size());
    }
    [[nodiscard]] std::int32_t GetLineData(std::int32_t row, int) const override {
        return data_.at(static_cast<std::size_t>(row));
    }
    void SetLineData(std::int32_t row, int, std::int32_t value) override {
        data_.at(static_cast<std::size_t>(row)) = value;
    }

    [[nodiscard]] const Text& At(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
    [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }

    void Change(int row, TextView text) { rows_.at(static_cast<std::size_t>(row)) = text; }
    void Add(int row, TextView text) {
        rows_.insert(rows_.begin() + row, Text(text));
        data_.insert(data_.begin() + row, 0);
    }
    void Remove(int row) {
        rows_.erase(rows_.begin() + row);
        data_.erase(data_.begin() + row);
    }

  private:
    Texts rows_;
    std::vector<std::int32_t> data_;
};

class LineTokensTest : public ::testing::Test {
  protected:
    /// Takes rows that were all scanned once.
    void Put(Texts rows) {
        rows_ = PlainRows(std::move(rows));
        tokens_.SetLex(std::make_unique<LexClass>());
        tokens_.Reset(rows_.Count());
        static_cast<void>(Scanned());
    }

    /// Scans, and answers which rows were scanned: "2 3".
    [[nodiscard]] std::string Scanned() {
        std::string rows;
        tokens_.Scan(
            rows_, [this](int row) { return rows_.At(row); },
            [&](int row) { rows.append(rows.empty() ? "" : " ").append(std::to_string(row)); });
        return rows;
    }

    [[nodiscard]] std::string DrawnRow(int row) const {
        std::string drawn;
        for (const LexToken& token : tokens_.TokensOf(row)) {
            const TextView text = rows_.At(row);
            drawn += DrawnToken(
                text.substr(static_cast<std::size_t>(token.start), static_cast<std::size_t>(token.length)), token.type);
        }
        return drawn;
    }

    PlainRows rows_{{u""}};
    LineTokens tokens_;
};

TEST_F(LineTokensTest, WithoutAScannerNothingIsEverStale) {
    EXPECT_TRUE(tokens_.IsUpToDate());
    tokens_.Reset(3);
    tokens_.RowsChanged(1, 0, 2);
    EXPECT_TRUE(tokens_.IsUpToDate());
    EXPECT_EQ(Scanned(), "");
    EXPECT_EQ(tokens_.ScannedCount(), 0);
    EXPECT_EQ(tokens_.TokenAt(0, 0), TokenInfo());
}

TEST_F(LineTokensTest, AScannerGetsAllRowsOnce) {
    rows_ = PlainRows({u"a {", u"}", u"b {}"});
    tokens_.Reset(3);
    tokens_.SetLex(std::make_unique<LexClass>());
    EXPECT_FALSE(tokens_.IsUpToDate());
    EXPECT_EQ(Scanned(), "0 1 2");
    EXPECT_TRUE(tokens_.IsUpToDate());
    EXPECT_EQ(Scanned(), "");
    EXPECT_EQ(DrawnRow(0), "[a ]24[{]23");
    EXPECT_EQ(DrawnRow(2), "[b ]24[{]23[}]23");
    tokens_.SetLex(std::make_unique<LexClass>());
    EXPECT_EQ(Scanned(), "0 1 2");
    EXPECT_EQ(tokens_.ScannedCount(), 6);
}

TEST_F(LineTokensTest, ARowThatEndsAsBeforeIsScannedAlone) {
    Put({u"a {", u"color: red;", u"margin: 1px;", u"}"});
    rows_.Change(1, u"color: blue;");
    tokens_.RowsChanged(1, 0, 0);
    EXPECT_EQ(Scanned(), "1");
    EXPECT_EQ(DrawnRow(1), "[color]19[:]17[ blue]21[;]17");
}

TEST_F(LineTokensTest, ARowThatEndsOtherwiseTakesTheNextOnesWithItUntilOneEndsAsBefore) {
    Put({u"a {", u"color: red;", u"margin: 1px;", u"}", u"b {}"});
    rows_.Change(1, u"color: red; /*");
    tokens_.RowsChanged(1, 0, 0);
    EXPECT_EQ(Scanned(), "1 2 3 4");
    EXPECT_EQ(DrawnRow(4), "[b {}]6");
    rows_.Change(2, u"*/ margin: 1px;");
    tokens_.RowsChanged(2, 0, 0);
    EXPECT_EQ(Scanned(), "2 3 4");
    EXPECT_EQ(DrawnRow(4), "[b ]24[{]23[}]23");
    rows_.Change(1, u"color: red");
    tokens_.RowsChanged(1, 0, 0);
    EXPECT_EQ(Scanned(), "1 2");
}

TEST_F(LineTokensTest, RowsThatComeAreScannedWithTheOnesAroundThem) {
    Put({u"a {}", u"b {}", u"c {}", u"d {}"});
    rows_.Add(2, u"x {}");
    rows_.Add(3, u"y {}");
    tokens_.RowsChanged(1, 0, 2);
    EXPECT_EQ(Scanned(), "1 2 3 4");
    EXPECT_EQ(DrawnRow(3), "[y ]24[{]23[}]23");
    EXPECT_EQ(DrawnRow(5), "[d ]24[{]23[}]23");
}

TEST_F(LineTokensTest, RowsThatGoLeaveTheOnesAroundThemToBeScanned) {
    Put({u"a {}", u"/*", u"*/", u"b {}", u"c {}"});
    rows_.Remove(1);
    rows_.Remove(1);
    tokens_.RowsChanged(0, 2, 0);
    EXPECT_EQ(Scanned(), "0 1");
    EXPECT_EQ(DrawnRow(1), "[b ]24[{]23[}]23");
    EXPECT_EQ(DrawnRow(2), "[c ]24[{]23[}]23");
}

TEST_F(LineTokensTest, TheRowBehindOneThatWentStartsAsTheRowInFrontEnds) {
    Put({u"a {}", u"/*", u"b {}", u"*/", u"c {}"});
    EXPECT_EQ(DrawnRow(2), "[b {}]6");
    rows_.Remove(1);
    tokens_.RowsChanged(0, 1, 0);
    EXPECT_EQ(Scanned(), "0 1 2");
    EXPECT_EQ(DrawnRow(1), "[b ]24[{]23[}]23");
    EXPECT_EQ(DrawnRow(2), "[*/]24");
}

TEST_F(LineTokensTest, RowsThatGoBeforeTheyWereScannedAreForgotten) {
    Put({u"a {}", u"b {}", u"c {}", u"d {}"});
    tokens_.RowsChanged(2, 0, 0);
    tokens_.RowsChanged(3, 0, 0);
    rows_.Remove(2);
    rows_.Remove(2);
    tokens_.RowsChanged(1, 2, 0);
    EXPECT_FALSE(tokens_.IsUpToDate());
    EXPECT_EQ(Scanned(), "1");
    EXPECT_TRUE(tokens_.IsUpToDate());
}

TEST_F(LineTokensTest, WhereThereIsNoTokenThereIsType0) {
    Put({u"a {}", u"", u"b"});
    EXPECT_EQ(tokens_.TokenAt(2, 0), (TokenInfo{23, 2, 1}));
    EXPECT_EQ(tokens_.TokenAt(4, 0), TokenInfo());
    EXPECT_EQ(tokens_.TokenAt(0, 1), TokenInfo());
    EXPECT_EQ(tokens_.TokenAt(0, 3), TokenInfo());
    EXPECT_EQ(tokens_.TokenAt(0, -1), TokenInfo());
    EXPECT_EQ(tokens_.TokenAt(-1, 0), TokenInfo());
}

TEST_F(LineTokensTest, ARowThatIsTooLongFailsOnceAndTheOthersAreScanned) {
    rows_ = PlainRows({u"a {}", Text(32768, u'x'), u"b {}", u"c {}"});
    tokens_.SetLex(std::make_unique<LexClass>());
    tokens_.Reset(4);
    EXPECT_THROW(static_cast<void>(Scanned()), OverflowFailure);
    EXPECT_TRUE(tokens_.IsUpToDate());
    EXPECT_EQ(Scanned(), "");
    EXPECT_EQ(DrawnRow(0), "[a ]24[{]23[}]23");
    EXPECT_EQ(DrawnRow(1), "");
    EXPECT_EQ(DrawnRow(3), "[c ]24[{]23[}]23");
    rows_.Change(1, u"x");
    tokens_.RowsChanged(1, 0, 0);
    EXPECT_EQ(Scanned(), "1");
    EXPECT_EQ(DrawnRow(1), "[x]24");
}

/// The tokens as a control has them.
class TokensOfAControl : public ::testing::Test {
  protected:
    void SetUp() override { view_.Buffer().SetLex(std::make_unique<LexClass>()); }

    /// How many rows are scanned for what `act` does.
    template <typename Act>
    [[nodiscard]] long RowsScannedFor(Act act) {
        static_cast<void>(view_.GetTokenInfo(0, 0));
        const long before = view_.ScannedRows();
        act();
        static_cast<void>(view_.GetTokenInfo(0, 0));
        return view_.ScannedRows() - before;
    }

    [[nodiscard]] static Text ManyRules(int count) {
        Text text;
        for (int index = 0; index < count; ++index)
            text += u"a {color: red}\n";
        return text;
    }

    MemoryClipboard clipboard_;
    MemorySourceView view_{clipboard_};
};

TEST_F(TokensOfAControl, ThoseOfManyRandomChangesAreThoseOfTheWholeText) {
    RandomNumbers random(1999);
    for (int step = 0; step < 20000; ++step) {
        if (step % 500 == 0) {
            view_.SetText(u"h1 {\r\n  color: red;\r\n}\n\n/* x */\n@media print {\na {}\r}\n");
            view_.Buffer().ClearUndoStack();
        }
        const Text before = view_.GetText();
        ChangeAtRandom(view_, random);
        const Text text = view_.GetText();
        ASSERT_EQ(SettledTokens(view_), SettledTokens(text)) << step << "\n"
                                                             << Utf8FromText(before) << "\n-----\n"
                                                             << Utf8FromText(text);
    }
}

TEST_F(TokensOfAControl, ThoseOfSeveralChangesAtOnceAreThoseOfTheWholeText) {
    RandomNumbers random(77);
    for (int step = 0; step < 500; ++step) {
        view_.SetText(u"h1 {\n  color: red;\n}\n\n/* x */\n@media print {\na {}\n}\n");
        static_cast<void>(view_.GetTokenInfo(0, 0));
        for (int changes = 0; changes < 8; ++changes)
            ChangeAtRandom(view_, random);
        ASSERT_EQ(SettledTokens(view_), SettledTokens(view_.GetText())) << step << Utf8FromText(view_.GetText());
    }
}

TEST_F(TokensOfAControl, AskingScansNothingThatHasBeenScanned) {
    view_.SetText(ManyRules(100));
    EXPECT_EQ(RowsScannedFor([&] { view_.MoveCaret(700); }), 0);
    EXPECT_EQ(RowsScannedFor([&] { static_cast<void>(DrawnTokens(view_)); }), 0);
    EXPECT_EQ(RowsScannedFor([&] { view_.Recolor(); }), 101);
}

TEST_F(TokensOfAControl, TypingScansTheRowsAroundItWhateverTheLengthOfTheText) {
    for (const int rows : {10, 1000}) {
        view_.SetText(ManyRules(rows));
        view_.MoveCaret(4 * 15 + 8);
        EXPECT_LE(RowsScannedFor([&] { view_.TypeCharacter(u'x'); }), 1);
        EXPECT_LE(RowsScannedFor([&] { view_.PressBackspace(); }), 1);
        EXPECT_LE(RowsScannedFor([&] { view_.TypeCharacter(u'\n'); }), 5);
    }
}

TEST_F(TokensOfAControl, AnOpenedCommentIsScannedDownToItsEndAndNoFurther) {
    Text text = ManyRules(500) + u"b */ c {}\n" + ManyRules(499);
    view_.SetText(text);
    const long opened = RowsScannedFor([&] { view_.Buffer().Insert(0, 0, u"/*"); });
    EXPECT_GE(opened, 501);
    EXPECT_LE(opened, 501 + 2);
    EXPECT_EQ(DrawnTokens(view_, 0), "[/*a {color: red}]6");
    EXPECT_EQ(DrawnTokens(view_, 499), "[a {color: red}]6");
    EXPECT_EQ(DrawnTokens(view_, 500), "[b */]6[ c ]24[{]23[}]23");
    EXPECT_EQ(DrawnTokens(view_, 501), "[a ]24[{]23[color]19[:]17[ red]21[}]23");
    const long closed = RowsScannedFor([&] { view_.Buffer().Undo(); });
    EXPECT_GE(closed, 501);
    EXPECT_LE(closed, 501 + 2);
    EXPECT_EQ(DrawnTokens(view_, 499), "[a ]24[{]23[color]19[:]17[ red]21[}]23");
}

TEST_F(TokensOfAControl, ARowThatIsTooLongFailsOnceAndTheOthersHaveTheirs) {
    view_.SetText(u"a {}\n" + Text(32768, u'x') + u"\nb {}");
    EXPECT_THROW(static_cast<void>(view_.GetTokenInfo(0, 2)), OverflowFailure);
    EXPECT_EQ(DrawnTokens(view_, 0), "[a ]24[{]23[}]23");
    EXPECT_EQ(DrawnTokens(view_, 2), "[b ]24[{]23[}]23");
    EXPECT_EQ(view_.GetTokenInfo(5, 1), TokenInfo());
    view_.Buffer().Delete(0, 1, 1, 1);
    EXPECT_EQ(view_.GetTokenInfo(5, 1), (TokenInfo{24, 0, 32767}));
    view_.Buffer().Undo();
    EXPECT_THROW(static_cast<void>(view_.GetTokenInfo(0, 0)), OverflowFailure);
    EXPECT_EQ(DrawnTokens(view_, 2), "[b ]24[{]23[}]23");
}

}  // namespace
}  // namespace tintora::test
