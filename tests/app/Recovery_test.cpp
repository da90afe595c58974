#include "WindowFixture.h"
#include "linking/TextFiles.h"
#include "shell/qt/RecoveryDialog.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

namespace tintora {
namespace {

using Kind = RecoveryRecord::Kind;
using Answer = UserMessages::RecoveryAnswer;

class RecoveryTest : public test::WindowTest {
  protected:
    [[nodiscard]] std::string RecoveryPath() const { return folder.filePath("recovery").toStdString(); }

    /// What the next start finds.
    [[nodiscard]] std::vector<LeftCopy> Left() const { return RecoveryFolder(RecoveryPath()).ReadLeftCopies(); }

    /// What a run that has crashed has left.
    void Leave(const RecoveryRecord& record) const {
        RecoveryFolder earlier(RecoveryPath());
        earlier.Keep(earlier.MakeName(), record);
    }

    void OfferAnd(Answer answer) {
        told.recoveryAnswer = answer;
        window->OfferLeftCopies(Left());
    }
};

TEST_F(RecoveryTest, WhatIsTypedIsOfferedByTheNextStart) {
    const Text path = MakeFile("a.css", "h1 {}");
    window->show();
    window->OpenOneStyleSheet(path);
    QTest::keyClicks(window->ActiveDocument()->View().Control().viewport(), QStringLiteral("abc"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Left().size() == 1; }, 3000));
    // The first window goes without a word, as in a crash.
    window.reset();
    MakeWindow();
    OfferAnd(Answer::Recover);
    EXPECT_EQ(told.questions, QStringList({"recover: a.css"}));
    ASSERT_NE(window->ActiveDocument(), nullptr);
    EXPECT_EQ(window->ActiveDocument()->GetText(), u"abch1 {}");
    EXPECT_EQ(window->ActiveDocument()->File(), path);
    EXPECT_TRUE(window->ActiveDocument()->IsDirty());
    EXPECT_EQ(ReadFileBytes(path), "h1 {}");
    window->ActiveDocument()->Window().Save();
    EXPECT_EQ(ReadFileBytes(path), "abch1 {}");
    EXPECT_TRUE(Left().empty());
}

TEST_F(RecoveryTest, LaterLeavesACopyAndDiscardDropsIt) {
    Leave({Kind::UnsavedText, u"", u"style_sheet_1.css", 1, 0, "a {}"});
    OfferAnd(Answer::Later);
    EXPECT_EQ(Left().size(), 1U);
    OfferAnd(Answer::Discard);
    EXPECT_TRUE(Left().empty());
    EXPECT_TRUE(window->OpenDocuments().empty());
}

TEST_F(RecoveryTest, ACopyWhoseTextIsInItsFileIsNotOffered) {
    Leave({Kind::UnsavedText, MakeFile("a.css", "h1 {}"), u"a.css", 1, 0, "h1 {}"});
    Leave({Kind::UnsavedText, MakeFile("p.html", "<html><style>h1 {}</style></html>"), u"p.html", 1, 0, "h1 {}"});
    Leave({Kind::InterruptedWrite, MakeFile("b.css", "\xff"), u"b.css", 1, 0, "\xff"});
    window->OfferLeftCopies(Left());
    EXPECT_TRUE(told.questions.isEmpty());
    EXPECT_TRUE(Left().empty());
}

TEST_F(RecoveryTest, AnInterruptedWriteIsFinishedAndItsTextOfferedOnce) {
    const Text path = MakeFile("a.css", "new te");
    Leave({Kind::UnsavedText, path, u"a.css", 1, 0, "new text"});
    Leave({Kind::InterruptedWrite, path, u"a.css", 2, 0, "new text"});
    OfferAnd(Answer::Recover);
    EXPECT_EQ(told.questions, QStringList({"recover: a.css"}));
    EXPECT_EQ(ReadFileBytes(path), "new text");
    EXPECT_EQ(window->ActiveDocument()->File(), path);
    EXPECT_FALSE(window->ActiveDocument()->IsDirty());
    EXPECT_TRUE(Left().empty());
}

TEST_F(RecoveryTest, AnInterruptedWriteThatCannotBeFinishedIsToldAndKept) {
    Leave({Kind::InterruptedWrite, ToText(folder.path()), u"folder", 2, 0, "new text"});
    OfferAnd(Answer::Recover);
    EXPECT_EQ(told.messages, QStringList({"folder can't be written."}));
    EXPECT_EQ(Left().size(), 1U);
}

TEST_F(RecoveryTest, AFaultKeepsEveryUnsavedTextFirst) {
    window->LoadNewDoc();
    window->ActiveDocument()->Window().InsertText(u"a {}", 0);
    window->ReportFault(QStringLiteral("broken"));
    ASSERT_EQ(Left().size(), 1U);
    EXPECT_EQ(Left()[0].record.bytes, "a {}");
    EXPECT_EQ(told.messages.size(), 1);
}

class RecoveryDialogTest : public RecoveryTest {
  protected:
    void MakeDialog(const std::vector<RecoveryRecord>& records) {
        for (const RecoveryRecord& record : records)
            copies.push_back({"name", record});
        dialog = std::make_unique<RecoveryDialog>(
            copies, [this](std::size_t index, Answer answer) { answers.emplace_back(index, answer); }, window.get());
    }

    QPushButton& Button(const QString& text) {
        for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
            if (button->text() == text)
                return *button;
        }
        throw std::runtime_error("no such button");
    }
    [[nodiscard]] QString Difference() const { return dialog->findChild<QTextEdit*>()->toPlainText(); }
    [[nodiscard]] QString Labels() const {
        QString all;
        for (const QLabel* const label : dialog->findChildren<QLabel*>())
            all += label->text() + QLatin1Char('\n');
        return all;
    }

    std::vector<LeftCopy> copies;
    std::vector<std::pair<std::size_t, Answer>> answers;
    std::unique_ptr<RecoveryDialog> dialog;
};

TEST_F(RecoveryDialogTest, ItShowsBothTimesAndWhatMakesTheTextsDiffer) {
    const Text path = MakeFile("a.css", "h1 {}\nh2 {}\n");
    MakeDialog({{Kind::UnsavedText, path, u"a.css", 1'000'000'000'000, 0, "h1 {}\nh3 {}\n"}});
    EXPECT_EQ(Difference(), QStringLiteral("  h1 {}\n− h2 {}\n+ h3 {}"));
    EXPECT_TRUE(Labels().contains(QStringLiteral("a.css had changes that weren't saved.")));
    EXPECT_TRUE(Labels().contains(QStringLiteral("2001")));
    EXPECT_TRUE(Labels().contains(QStringLiteral("newer than the kept text")));
    EXPECT_FALSE(Button(QStringLiteral("&Recover")).isDefault()) << "a newer file isn't to be passed over by Enter";
}

TEST_F(RecoveryDialogTest, CopiesAreDealtWithOneByOne) {
    MakeDialog({{Kind::UnsavedText, u"", u"style_sheet_1.css", 1, 0, "a {}"},
                {Kind::InterruptedWrite, u"/nowhere/p.html", u"p.html", 1, 0, "<html>"},
                {Kind::UnsavedText, u"/nowhere/c.css", u"c.css", 1, 0, "c {}"}});
    EXPECT_TRUE(Labels().contains(QStringLiteral("style_sheet_1.css was never saved.")));
    Button(QStringLiteral("&Discard")).click();
    EXPECT_TRUE(Labels().contains(QStringLiteral("p.html was being written when Tintora ended")));
    Button(QStringLiteral("&Finish Writing")).click();
    EXPECT_EQ(dialog->findChild<QListWidget*>()->count(), 1);
    Button(QStringLiteral("&Recover")).click();
    EXPECT_EQ(answers, (std::vector<std::pair<std::size_t, Answer>>{
                           {0, Answer::Discard}, {1, Answer::Recover}, {2, Answer::Recover}}));
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(RecoveryDialogTest, LaterClosesItAndLeavesTheRest) {
    MakeDialog({{Kind::UnsavedText, u"", u"style_sheet_1.css", 1, 0, "a {}"}});
    dialog->show();
    Button(QStringLiteral("&Later")).click();
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(dialog->isHidden());
}

}  // namespace
}  // namespace tintora
