#include "shell/qt/frmMain.h"

#include "WindowFixture.h"
#include "linking/TextFiles.h"
#include "selectors/qt/SelectorList.h"
#include "settings/Settings.h"
#include "text/Narrowing.h"

#include <Qsci/qsciscintilla.h>
#include <sys/stat.h>
#include <QAction>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

namespace tintora {
namespace {

class frmMainTest : public test::WindowTest {
  protected:
    SelectorList& Statements() { return *window->findChild<SelectorList*>(); }

    QStringList Selectors() {
        QStringList selectors;
        for (QTreeWidgetItemIterator item(&Statements()); *item != nullptr; ++item)
            selectors.append((*item)->text(0));
        return selectors;
    }

    QString SelectedText() { return window->ActiveDocument()->View().Control().selectedText(); }
};

TEST_F(frmMainTest, AStyleSheetOpensWithItsStatementsBesideIt) {
    const Text path = MakeFile("a.css", "@import url(x);\nh1 {}\n@media print {\n p {}\n}\n");
    window->OpenOneStyleSheet(path);
    ASSERT_NE(window->ActiveDocument(), nullptr);
    EXPECT_EQ(window->ActiveDocument()->File(), path);
    EXPECT_EQ(window->ActiveDocument()->GetText(), ReadTextFile(path));
    EXPECT_EQ(window->ActiveDocument()->Caption(), QStringLiteral("a.css"));
    EXPECT_FALSE(window->ActiveDocument()->IsDirty());
    EXPECT_EQ(Selectors(), QStringList({"@import", "h1", "@media print", "p"}));
    EXPECT_EQ(Statements().topLevelItemCount(), 3);
    EXPECT_TRUE(window->windowTitle().startsWith(QStringLiteral("a.css")));
}

TEST_F(frmMainTest, AChosenStatementIsSelectedInTheText) {
    window->OpenOneStyleSheet(MakeFile("a.css", "\n h1 {}\n\xc3\xa9\xf0\x9f\x98\x80 {}\n@media print {\n p {}\n}\n"));
    window->show();
    const auto click = [&](int top, int child) {
        QTreeWidgetItem* item = Statements().topLevelItem(top);
        item = child < 0 ? item : item->child(child);
        const QRect place = Statements().visualItemRect(item);
        QTest::mouseClick(Statements().viewport(), Qt::LeftButton, {}, place.center());
    };
    click(0, -1);
    EXPECT_EQ(SelectedText(), QStringLiteral("h1 {}"));
    click(1, -1);
    EXPECT_EQ(SelectedText(), QString::fromUtf8("\xc3\xa9\xf0\x9f\x98\x80 {}"));
    click(2, 0);
    EXPECT_EQ(SelectedText(), QStringLiteral("p {}"));
    click(2, -1);
    EXPECT_EQ(SelectedText(), QStringLiteral("@media print {\n p {}\n}"));
}

TEST_F(frmMainTest, TheListFollowsTheTextWithADelay) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}"));
    window->ActiveDocument()->View().Control().append(QStringLiteral(" h2 {}"));
    EXPECT_EQ(Selectors(), QStringList({"h1"}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Selectors() == QStringList({"h1", "h2"}); }, 3000));
    EXPECT_TRUE(window->ActiveDocument()->IsDirty());
}

TEST_F(frmMainTest, TheListFollowsThePaneInFront) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}"));
    window->OpenOneStyleSheet(MakeFile("b.css", "h2 {}"));
    EXPECT_EQ(Selectors(), QStringList({"h2"}));
    EXPECT_EQ(Captions(*window), QStringList({"b.css", "a.css"}));
    window->findChild<QTabWidget*>()->setCurrentIndex(0);
    EXPECT_EQ(Selectors(), QStringList({"h1"}));
    EXPECT_EQ(Captions(*window), QStringList({"a.css", "b.css"}));
}

TEST_F(frmMainTest, APageOpensItsEmbeddedStyleSheet) {
    window->OpenOneStyleSheet(
        MakeFile("page.html", "<html><head><style type=\"text/css\">h1 {}</style></head></html>"));
    EXPECT_EQ(window->ActiveDocument()->GetText(), u"h1 {}");
    EXPECT_EQ(Selectors(), QStringList({"h1"}));
}

TEST_F(frmMainTest, APageWhoseStyleSheetDoesNotEndIsTold) {
    window->OpenOneStyleSheet(MakeFile("page.html", "<html><head><style>h1 {}</head></html>"));
    EXPECT_TRUE(window->OpenDocuments().empty());
    EXPECT_EQ(told.messages.size(), 1);
}

TEST_F(frmMainTest, AFileIsNeverOpenTwice) {
    const Text path = MakeFile("a.css", "h1 {}");
    window->OpenOneStyleSheet(path);
    window->OpenOneStyleSheet(MakeFile("b.css", ""));
    window->OpenOneStyleSheet(path);
    EXPECT_EQ(Captions(*window), QStringList({"a.css", "b.css"}));
}

TEST_F(frmMainTest, WhatIsNoFileOpensNothingAndSaysNothing) {
    for (const QString& path :
         {folder.filePath("missing.css"), folder.path(), QString(4000, QLatin1Char('x')), QString()})
        window->OpenOneStyleSheet(ToText(path));
    EXPECT_TRUE(window->OpenDocuments().empty());
    EXPECT_TRUE(told.messages.isEmpty());
}

TEST_F(frmMainTest, AFileThatCannotBeReadIsTold) {
    // A socket is a file that nobody can open, root included.
    const QString path = folder.filePath("a.css");
    ASSERT_EQ(::mknod(QFile::encodeName(path).constData(), S_IFSOCK | 0600, 0), 0);
    window->OpenOneStyleSheet(ToText(path));
    EXPECT_TRUE(window->OpenDocuments().empty());
    EXPECT_EQ(told.messages.size(), 1);
}

TEST_F(frmMainTest, AnyBytesOpenAsTheyStand) {
    const std::vector<QByteArray> files = {
        QByteArray(),
        QByteArray("h1 {\0} p {}", 11),
        QByteArray("\xef\xbb\xbfh1 {}"),
        QByteArray("h1 { content: \"\xe9\x80\"; }"),
        QByteArray("a {}\r\nb {}\rc {}\nd {}"),
        QByteArray("\x7f\x45\x4c\x46\x02\x01\x00\xff\xfe\x00", 10),
    };
    int number = 0;
    for (const QByteArray& bytes : files) {
        const Text path = MakeFile(qPrintable(QStringLiteral("%1.css").arg(++number)), bytes);
        window->OpenOneStyleSheet(path);
        EXPECT_EQ(window->ActiveDocument()->GetText(), ReadTextFile(path)) << number;
    }
    EXPECT_TRUE(told.messages.isEmpty());
}

TEST_F(frmMainTest, ATextAtTheLimitIsScannedAndOneBeyondItIsToldOnceAndKept) {
    window->LoadStep(MakeFile("limit.css", QByteArray(32767, 'a')));
    EXPECT_TRUE(told.messages.isEmpty());
    window->LoadStep(MakeFile("long.css", QByteArray(40120, 'a')));
    EXPECT_EQ(told.messages, QStringList({"long.css has 40,120 characters."}));
    EXPECT_EQ(window->ActiveDocument()->GetText().size(), 40120U);
    EXPECT_TRUE(Selectors().isEmpty());
    window->ReportOverflow();
    EXPECT_EQ(told.messages.size(), 1) << "it is told once";

    StyleSheetPane& pane = *window->ActiveDocument();
    pane.View().Control().SendScintilla(QsciScintilla::SCI_DELETERANGE, 5UL, 40000L);
    pane.Window().CacheStatements();
    EXPECT_EQ(Selectors().size(), 1);
    pane.View().Control().append(QString(40000, QLatin1Char('b')));
    EXPECT_THROW(pane.Window().CacheStatements(), OverflowFailure);
    window->ReportOverflow();
    EXPECT_EQ(told.messages.size(), 2) << "once more after it had fitted";
}

TEST_F(frmMainTest, TheVeryFirstRunOpensNothingByItselfAndLaterOnesANewStyleSheet) {
    window->LoadStep(u"");
    EXPECT_TRUE(window->OpenDocuments().empty());
    Settings(store).SetSetupWizardCompleted(true);
    window->LoadStep(u"");
    EXPECT_EQ(Captions(*window), QStringList({"style_sheet_1.css"}));
    window->LoadNewDoc();
    EXPECT_EQ(Captions(*window), QStringList({"style_sheet_2.css", "style_sheet_1.css"}));
    EXPECT_EQ(window->ActiveDocument()->File(), u"");
}

TEST_F(frmMainTest, TheVeryFirstRunWithAFileOpensIt) {
    window->LoadStep(MakeFile("a.css", ""));
    EXPECT_EQ(Captions(*window), QStringList({"a.css"}));
}

TEST_F(frmMainTest, AFreshStoreComesUpMaximised) {
    window->LoadStep(u"");
    EXPECT_TRUE(window->isMaximized());
}

TEST_F(frmMainTest, TheStoredPlaceIsInTwips) {
    Settings settings(store);
    settings.SaveMaximized(false);
    settings.SaveWindowPlace({150, 300, 9000, 6000});
    window->LoadStep(u"");
    EXPECT_EQ(window->pos(), QPoint(10, 20));
    EXPECT_EQ(window->size(), QSize(600, 400));
}

TEST_F(frmMainTest, ADamagedPlaceKeepsTheWindowAndOpensTheFileAllTheSame) {
    Settings settings(store);
    settings.SaveMaximized(false);
    settings.Save(setting::MainTop, u"high up");
    const QSize before = window->size();
    window->LoadStep(MakeFile("a.css", ""));
    EXPECT_EQ(window->size(), before);
    EXPECT_EQ(Captions(*window), QStringList({"a.css"}));
}

TEST_F(frmMainTest, ClosingStoresThePlaceButNotWhenMinimised) {
    Settings settings(store);
    settings.SaveMaximized(false);
    settings.SaveWindowPlace({150, 300, 9000, 6000});
    window->LoadStep(u"");
    window->showMinimized();
    window->close();
    EXPECT_EQ(settings.GetWindowPlace(), (WindowPlace{150, 300, 9000, 6000}));
    window->showNormal();
    window->resize(500, 500);
    window->close();
    EXPECT_EQ(settings.GetWindowPlace().width, 7500);
    EXPECT_FALSE(settings.GetMaximized());
}

TEST_F(frmMainTest, AMaximisedWindowComesUpMaximisedAgain) {
    Settings settings(store);
    settings.SaveMaximized(false);
    window->show();
    window->showMaximized();
    window->close();
    EXPECT_TRUE(settings.GetMaximized());
    MakeWindow();
    window->LoadStep(u"");
    EXPECT_TRUE(window->isMaximized());
}

TEST_F(frmMainTest, KeepingADirtyStyleSheetKeepsTheWindowAndStoresNothing) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}"));
    window->show();
    window->ActiveDocument()->Window().InsertText(u"x", 0);
    told.saveAnswer = FileDialogs::SaveAnswer::Cancel;
    const std::size_t stored = store.Size();
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(store.Size(), stored);
    EXPECT_EQ(told.questions, QStringList({"Save changes to the style sheet \"a.css\" before closing?"}));
    told.saveAnswer = FileDialogs::SaveAnswer::No;
    EXPECT_TRUE(window->close());
}

TEST_F(frmMainTest, ClosingAPaneAsksOnlyForUnsavedChanges) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}"));
    window->OpenOneStyleSheet(MakeFile("b.css", "h2 {}"));
    QAction* const close = window->findChild<QAction*>(QStringLiteral("miFCloseWindow"));
    close->trigger();
    EXPECT_TRUE(told.questions.isEmpty());
    EXPECT_EQ(Captions(*window), QStringList({"a.css"}));
    EXPECT_EQ(Selectors(), QStringList({"h1"}));
    window->ActiveDocument()->Window().InsertText(u"x", 0);
    told.saveAnswer = FileDialogs::SaveAnswer::Cancel;
    close->trigger();
    EXPECT_EQ(Captions(*window), QStringList({"a.css"}));
    told.saveAnswer = FileDialogs::SaveAnswer::No;
    close->trigger();
    EXPECT_TRUE(window->OpenDocuments().empty());
    EXPECT_TRUE(Selectors().isEmpty());
    close->trigger();
}

TEST_F(frmMainTest, EachEditCommandDoesItsWork) {
    const auto trigger = [&](const char* key) {
        auto* const action = window->findChild<QAction*>(key);
        ASSERT_NE(action, nullptr) << key;
        ASSERT_TRUE(action->isEnabled()) << key;
        action->trigger();
    };
    window->OpenOneStyleSheet(MakeFile("a.css", "h1{color:red}\np {}\n"));
    window->show();
    ktStyleSheetWindow& document = window->ActiveDocument()->Window();
    document.SetSelection(14, 14);
    EXPECT_FALSE(window->findChild<QAction*>("miECut")->isEnabled());
    EXPECT_FALSE(window->findChild<QAction*>("miEUndo")->isEnabled());
    trigger("miSDuplicate");
    EXPECT_EQ(document.GetText(), u"h1{color:red}\np {}\n\np {}\n");
    trigger("miEUndo");
    trigger("miERedo");
    trigger("miEUndo");
    EXPECT_EQ(document.GetText(), u"h1{color:red}\np {}\n");
    trigger("miEFormatStyleSheet");
    EXPECT_EQ(document.GetText(), u"h1 {color:red}\n\np {}");
    trigger("miEUndo");
    document.SetSelection(0, 2);
    trigger("miECommentOut");
    EXPECT_EQ(document.GetText(), u"/*h1*/{color:red}\np {}\n");
    trigger("miEUndo");
    document.SetSelection(0, 2);
    trigger("miECopy");
    trigger("miEPaste");
    document.SetSelection(0, 2);
    trigger("miECut");
    EXPECT_EQ(document.GetText(), u"{color:red}\np {}\n");
    trigger("miEPaste");
    trigger("miEIndent");
    EXPECT_EQ(document.GetText(), u"\th1{color:red}\np {}\n");
    trigger("miEOutdent");
    trigger("miESelectAll");
    trigger("miEClear");
    EXPECT_EQ(document.GetText(), u"");
    EXPECT_FALSE(window->findChild<QAction*>("miSRemove")->isEnabled());
    EXPECT_EQ(window->findChild<QLabel*>("CaretPosition")->text(), QStringLiteral("Line 1 Col 0"));
}

TEST_F(frmMainTest, TheListShowsTheStatementAtTheCaret) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}\np {}\n"));
    window->ActiveDocument()->Window().SetSelection(7, 7);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Statements().currentItem() != nullptr && Statements().currentItem()->text(0) == "p"; }, 3000));
}

TEST_F(frmMainTest, TheListShowsAStatementThatIsTypedAtTheEnd) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}\n"));
    ktStyleSheetWindow& document = window->ActiveDocument()->Window();
    document.SetSelection(6, 6);
    document.InsertText(u"p {}", 6);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Statements().currentItem() != nullptr && Statements().currentItem()->text(0) == "p"; }, 3000));
}

TEST_F(frmMainTest, TheListNamesTheStatementAtTheCaretAlsoWhileTheDocumentLagsBehind) {
    window->OpenOneStyleSheet(MakeFile("a.css", "h1 {}\np {}\nq {}\n"));
    ktStyleSheetWindow& document = window->ActiveDocument()->Window();
    ASSERT_TRUE(QTest::qWaitFor([&] { return document.LastSelectedStatement() == 1; }, 3000));
    document.SetSelection(15, 15);
    document.UpdateSelectorsPalette();
    EXPECT_EQ(Selectors(), QStringList({"h1", "p", "q"}));
    EXPECT_EQ(Statements().SelectedNumber(), 3);
}

TEST_F(frmMainTest, ASavedStyleSheetIsInItsFileAndClean) {
    const Text path = MakeFile("a.css", "h1 {}\r\n");
    window->OpenOneStyleSheet(path);
    window->ActiveDocument()->Window().InsertText(u"p {}\n", 0);
    QAction* const save = window->findChild<QAction*>("miFSave");
    EXPECT_TRUE(save->isEnabled());
    EXPECT_TRUE(window->isWindowModified());
    save->trigger();
    EXPECT_EQ(ReadFileBytes(path), "p {}\r\nh1 {}\r\n");
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_FALSE(save->isEnabled());
}

TEST_F(frmMainTest, TheMainWindowCanBeFound) {
    EXPECT_EQ(GetMainWindow(), window.get());
    window.reset();
    EXPECT_EQ(GetMainWindow(), nullptr);
}

}  // namespace
}  // namespace tintora
