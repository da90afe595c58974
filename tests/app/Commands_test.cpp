#include "shell/Commands.h"

#include "WindowFixture.h"
#include "editor/qt/FindBar.h"
#include "linking/TextFiles.h"
#include "selectors/qt/SelectorList.h"
#include "shell/OnlinePages.h"
#include "shell/qt/RecentMenu.h"
#include "shell/qt/options/frmOptions.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <functional>
#include <map>

namespace tintora {
namespace {

// Each command, through the action that the user has for it.

class CommandsTest : public test::WindowTest {
  protected:
    CommandsTest() {
        window->resize(1280, 800);
        window->show();
        window->OpenOneStyleSheet(MakeFile("a.css", Sheet));
        window->ActiveDocument()->setFocus();
    }

    static constexpr auto Sheet = "h1 {color: red;}\np {}\n";

    [[nodiscard]] QAction* Find(TextView key) const {
        return window->findChild<QAction*>(ToQString(key), Qt::FindDirectChildrenOnly);
    }

    void Trigger(TextView key) {
        QAction* const action = Find(key);
        ASSERT_NE(action, nullptr) << Utf8FromText(key);
        ASSERT_TRUE(action->isEnabled()) << Utf8FromText(key);
        action->trigger();
    }

    ktStyleSheetWindow& Document() { return window->ActiveDocument()->Window(); }
    [[nodiscard]] Text SheetText() const { return window->ActiveDocument()->GetText(); }

    /// Brings back the text and the selection that each command starts from.
    void Restore(int start, int end) {
        Document().SetText(ToText(QString::fromUtf8(Sheet)));
        Document().SetDirty(false);
        Document().SetSelection(start, end);
        window->ActiveDocument()->setFocus();
    }

    /// Looks at the dialog that a command opens, and closes it.
    static void WithDialog(const std::function<void(QWidget&)>& look) {
        QTimer::singleShot(0, qApp, [look] {
            QWidget* const dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            look(*dialog);
            dialog->close();
        });
    }

    void ExpectAfter(TextView key, int start, int end, TextView text) {
        Restore(start, end);
        Trigger(key);
        EXPECT_EQ(Utf8FromText(SheetText()), Utf8FromText(text)) << Utf8FromText(key);
    }
};

const Text TwoRules = u"h1 {color: red;}\np {}\n";

TEST_F(CommandsTest, EachCommandOfTheTextChangesIt) {
    ExpectAfter(u"miEClear", 0, 3, u"{color: red;}\np {}\n");
    ExpectAfter(u"miEIndent", 0, 2, u"\th1 {color: red;}\np {}\n");
    ExpectAfter(u"miECommentOut", 0, 2, u"/*h1*/ {color: red;}\np {}\n");
    ExpectAfter(u"miEFormatStyleSheet", 0, 0, u"h1 {color: red;}\n\np {}");
    ExpectAfter(u"miSDuplicate", 19, 19, u"h1 {color: red;}\np {}\n\np {}\n");
    ExpectAfter(u"miSRemove", 19, 19, u"h1 {color: red;}\n\n");
    Trigger(u"miEUndo");
    EXPECT_EQ(SheetText(), TwoRules);
    Trigger(u"miERedo");
    EXPECT_EQ(Utf8FromText(SheetText()), "h1 {color: red;}\n\n");
    Restore(0, 2);
    Trigger(u"miECut");
    Trigger(u"miEPaste");
    Trigger(u"miEPaste");
    EXPECT_EQ(Utf8FromText(SheetText()), "h1h1 {color: red;}\np {}\n");
    Document().SetSelection(0, 4);
    Trigger(u"miECopy");
    Trigger(u"miEIndent");
    Trigger(u"miEOutdent");
    Trigger(u"miESelectAll");
    Trigger(u"miEPaste");
    EXPECT_EQ(Utf8FromText(SheetText()), "h1h1");
}

TEST_F(CommandsTest, EachSetOfRulesIsInserted) {
    for (const TextView key : {TextView(u"miAllLinkStates"), TextView(u"miAllBasicText"),
                               TextView(u"miAllHeadingLevels"), TextView(u"miAllTable"), TextView(u"miAllForm")}) {
        Restore(0, 0);
        Trigger(key);
        const Text kind(CommandFor(key)->parameter);
        const Text after = SheetText();
        Restore(0, 0);
        Document().NewStatement(kind);
        EXPECT_EQ(after, SheetText());
        EXPECT_GT(after.size(), TwoRules.size() + 20) << Utf8FromText(key);
    }
}

TEST_F(CommandsTest, TheFindBarAndTheLineQuestionOpen) {
    Restore(0, 0);
    QWidget* const bar = window->ActiveDocument()->findChild<FindBar*>();
    ASSERT_NE(bar, nullptr);
    Trigger(u"miEFind");
    EXPECT_TRUE(bar->isVisible());
    bar->hide();
    Trigger(u"miEReplace");
    EXPECT_TRUE(bar->isVisible());
    Trigger(u"miEFindNext");
    WithDialog([](QWidget&) {});
    Trigger(u"miEGotoLine");
}

TEST_F(CommandsTest, FilesAreMadeSavedAndClosed) {
    Trigger(u"miFNew");
    EXPECT_EQ(Captions(*window), QStringList({"style_sheet_2.css", "a.css"}));
    Document().InsertText(u"x", 0);
    told.savePath = ToText(folder.filePath("saved.css"));
    Trigger(u"miFSave");
    EXPECT_EQ(ReadFileBytes(*told.savePath), "x");
    EXPECT_EQ(RecentFiles(store).Read(), Texts{*told.savePath});
    told.savePath = ToText(folder.filePath("other.css"));
    Trigger(u"miFSaveAs");
    EXPECT_EQ(ReadFileBytes(*told.savePath), "x");
    Document().InsertText(u"y", 0);
    Trigger(u"miFSaveAll");
    EXPECT_EQ(ReadFileBytes(*told.savePath), "yx");
    Trigger(u"miFCloseWindow");
    EXPECT_EQ(Captions(*window), QStringList({"a.css"}));
}

TEST_F(CommandsTest, PagesAreLinkedAndTakeTheStyleSheetIn) {
    told.page = MakeFile("page.html", "<html><head></head></html>");
    Trigger(u"miFLinkPage");
    Trigger(u"miFEmbedStyleSheet");
    Trigger(u"miFLinkSite");
    EXPECT_EQ(told.questions, QStringList({"Link Page...", "Embed In Page...",
                                           "Link to every HTML file in which folder and its subfolders?"}));
}

TEST_F(CommandsTest, TheDialogsOpen) {
    const auto expectDialog = [&](TextView key, const char* title) {
        QString shown;
        WithDialog([&](QWidget& dialog) { shown = dialog.windowTitle(); });
        Trigger(key);
        EXPECT_TRUE(shown.startsWith(QString::fromUtf8(title))) << Utf8FromText(key) << " " << shown.toStdString();
    };
    expectDialog(u"miFPageSetup", "Page Setup");
    expectDialog(u"miFPrint", "Print");
    expectDialog(u"miHAbout", "About Tintora");
    QString shown;
    WithDialog([&](QWidget& dialog) { shown = QString::fromLatin1(dialog.metaObject()->className()); });
    Trigger(u"miFOptions");
    EXPECT_EQ(shown, QStringLiteral("tintora::frmOptions"));
}

TEST_F(CommandsTest, TheFileDialogOpensAndQuittingClosesTheWindow) {
    QString shown;
    WithDialog([&](QWidget& dialog) { shown = dialog.windowTitle(); });
    Trigger(u"miFOpen");
    EXPECT_EQ(shown, QStringLiteral("Open"));
    Trigger(u"miFExit");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(CommandsTest, PalettesAndToolbarsAreShownHiddenAndArranged) {
    const auto* const pane = window->findChild<QDockWidget*>(QStringLiteral("dwSelectorsEditor"));
    const auto* const toolbar = window->findChild<QToolBar*>(QStringLiteral("Basic Properties"));
    ASSERT_TRUE(pane != nullptr && toolbar != nullptr);
    Trigger(u"miWHideAllPalettes");
    EXPECT_TRUE(pane->isHidden());
    EXPECT_FALSE(Find(u"miWSelectorsEditor")->isChecked());
    Trigger(u"miWSelectorsEditor");
    EXPECT_FALSE(pane->isHidden());
    EXPECT_TRUE(Find(u"miWSelectorsEditor")->isChecked());
    Trigger(u"miWHideAllPalettes");
    Trigger(u"miWShowAllPalettes");
    EXPECT_FALSE(pane->isHidden());
    Trigger(u"miWHideAllToolbars");
    EXPECT_TRUE(toolbar->isHidden());
    Trigger(u"miWShowAllToolbars");
    EXPECT_FALSE(toolbar->isHidden());
    Trigger(u"miWUseEditLayout");
    EXPECT_EQ(window->dockWidgetArea(const_cast<QDockWidget*>(pane)), Qt::RightDockWidgetArea);
    EXPECT_TRUE(toolbar->isHidden());
    Trigger(u"miWUseDesignLayout");
    EXPECT_EQ(window->dockWidgetArea(const_cast<QDockWidget*>(pane)), Qt::LeftDockWidgetArea);
    EXPECT_FALSE(toolbar->isHidden());
    Trigger(u"miWUseEditLayout");
    Trigger(u"miWUseStandardLayout");
    EXPECT_EQ(window->dockWidgetArea(const_cast<QDockWidget*>(pane)), Qt::LeftDockWidgetArea);
    Trigger(u"miFCloseWindow");
    Trigger(u"miWUseEditLayout");
    EXPECT_TRUE(toolbar->isHidden()) << "without a document the panes are arranged all the same";
}

TEST_F(CommandsTest, TheArrangementIsKeptFromRunToRun) {
    const QString layout = folder.filePath(QStringLiteral("Layouts/current"));
    const auto makeWindow = [&] {
        window = std::make_unique<frmMain>(Surroundings(layout));
        window->LoadStep(u"");
        window->show();
    };
    makeWindow();
    Trigger(u"miWUseEditLayout");
    EXPECT_TRUE(window->close());
    makeWindow();
    EXPECT_TRUE(window->findChild<QToolBar*>(QStringLiteral("Basic Properties"))->isHidden());
    EXPECT_EQ(window->dockWidgetArea(window->findChild<QDockWidget*>(QStringLiteral("dwSelectorsEditor"))),
              Qt::RightDockWidgetArea);
}

TEST_F(CommandsTest, TheCommandsOfCorePropertiesChangeTheCurrentRule) {
    struct StyleCase {
        const char* key;
        TextView declaration;
    };
    constexpr StyleCase Cases[] = {{"miFoBold", u"font-weight: bold;"},
                                   {"miFoItalic", u"font-style: italic;"},
                                   {"miFoUnderline", u"text-decoration: underline;"},
                                   {"miFoStrikeThrough", u"text-decoration: line-through;"},
                                   {"miFoLeft", u"text-align: left;"},
                                   {"miFoCenter", u"text-align: center;"},
                                   {"miFoRight", u"text-align: right;"},
                                   {"miFoJustify", u"text-align: justify;"}};
    auto* const bar = window->findChild<QToolBar*>(QStringLiteral("Basic Properties"));
    for (const StyleCase& row : Cases) {
        SCOPED_TRACE(row.key);
        Restore(20, 20);
        Document().FollowCaretNow();
        auto* const action = bar->findChild<QAction*>(QString::fromUtf8(row.key));
        ASSERT_TRUE(action != nullptr && action->isEnabled());
        action->trigger();
        EXPECT_EQ(Utf8FromText(SheetText()), "h1 {color: red;}\np {\n" + Utf8FromText(row.declaration) + "}\n");
        EXPECT_TRUE(action->isChecked());
        Trigger(u"miEUndo");
        EXPECT_EQ(SheetText(), TwoRules) << "each change is one step to undo";
    }
    for (const char* const key : {"miColor", "miBackgroundColor"}) {
        Restore(20, 20);
        Document().FollowCaretNow();
        told.questions.clear();
        bar->findChild<QAction*>(QString::fromUtf8(key))->trigger();
        ASSERT_EQ(told.questions.size(), 1) << key;
        EXPECT_TRUE(told.questions.front().startsWith(QStringLiteral("Edit "))) << key;
        EXPECT_EQ(SheetText(), TwoRules);
    }
}

TEST_F(CommandsTest, OnlinePagesOpenInTheBrowser) {
    for (const OnlinePage& page : OnlinePages())
        Trigger(page.key);
    ASSERT_EQ(told.addresses.size(), static_cast<int>(OnlinePages().size()));
    EXPECT_EQ(told.addresses.first(), ToQString(OnlinePages().front().address));
}

TEST_F(CommandsTest, TheKeyboardGoesRoundDocumentsAndPanes) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Trigger(u"miFNew");
    Trigger(u"miFNew");
    EXPECT_EQ(window->ActiveDocument()->Caption(), QStringLiteral("style_sheet_3.css"));
    Trigger(u"miWNextDocument");
    EXPECT_EQ(window->ActiveDocument()->Caption(), QStringLiteral("a.css"));
    Trigger(u"miWPreviousDocument");
    EXPECT_EQ(window->ActiveDocument()->Caption(), QStringLiteral("style_sheet_3.css"));
    EXPECT_TRUE(window->ActiveDocument()->isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(window->CurrentForm(), u"Document");
    Trigger(u"miWNextPane");
    EXPECT_EQ(QApplication::focusWidget(), window->findChild<SelectorList*>());
    EXPECT_EQ(window->CurrentForm(), u"Editor");
    for (int pane = 0; pane < 8 && window->CurrentForm() != u"Document"; ++pane)
        Trigger(u"miWNextPane");
    EXPECT_EQ(window->CurrentForm(), u"Document");
}

TEST_F(CommandsTest, WithTheFocusInAPaletteTheClipboardCommandsLeaveTheTextAlone) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Restore(0, 2);
    window->findChild<SelectorList*>()->setFocus();
    ASSERT_EQ(window->CurrentForm(), u"Editor");
    Find(u"miECut")->trigger();
    EXPECT_EQ(SheetText(), TwoRules);
}

TEST_F(CommandsTest, APaletteThatTakesTheFocusIsBroughtToTheCaretFirst) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Document().LastSelectedStatement() == 1; }, 3000));
    Document().SetSelection(19, 19);
    EXPECT_EQ(Document().LastSelectedStatement(), 1) << "half a second hasn't passed";
    window->findChild<SelectorList*>()->setFocus();
    EXPECT_EQ(Document().LastSelectedStatement(), 2);
}

TEST_F(CommandsTest, WithoutADocumentACommandDoesNothing) {
    Trigger(u"miFCloseWindow");
    ASSERT_EQ(window->ActiveDocument(), nullptr);
    for (const Command& command : Commands()) {
        QAction* const action = Find(command.key);
        if (action == nullptr || !NeedsDocument(command.operation))
            continue;
        EXPECT_FALSE(action->isEnabled()) << Utf8FromText(command.key);
        action->setEnabled(true);
        action->trigger();
    }
    EXPECT_TRUE(told.questions.isEmpty());
    EXPECT_TRUE(told.messages.isEmpty());
}

TEST_F(CommandsTest, EveryToolbarCommandHasAMenuEntry) {
    QList<QAction*> inMenus;
    const std::function<void(const QList<QAction*>&)> collect = [&](const QList<QAction*>& actions) {
        for (QAction* const action : actions) {
            inMenus.append(action);
            if (action->menu() != nullptr)
                collect(action->menu()->actions());
        }
    };
    collect(window->menuBar()->actions());
    int count = 0;
    for (const QToolBar* const bar : window->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        for (QAction* const action : bar->actions()) {
            if (action->isSeparator() || action->objectName().startsWith(QStringLiteral("cb")) ||
                action->text().isEmpty())
                continue;
            EXPECT_TRUE(inMenus.contains(action)) << action->objectName().toStdString();
            EXPECT_FALSE(action->toolTip().isEmpty());
            EXPECT_FALSE(action->icon().isNull()) << action->objectName().toStdString();
            ++count;
        }
    }
    EXPECT_GE(count, 9);
}

TEST_F(CommandsTest, NoEntryOfTheMenusDoesNothing) {
    for (QAction* const menu : window->menuBar()->actions()) {
        ASSERT_NE(menu->menu(), nullptr);
        for (QAction* const action : menu->menu()->actions()) {
            if (action->isSeparator() || action->menu() != nullptr)
                continue;
            EXPECT_TRUE(CommandFor(ToText(action->objectName())) != nullptr ||
                        action->objectName() == QStringLiteral("miFoProperty") ||
                        action->objectName().startsWith(QStringLiteral("miWNext")) ||
                        action->objectName().startsWith(QStringLiteral("miWPrevious")))
                << action->objectName().toStdString();
            EXPECT_NE(action->objectName(), QStringLiteral("miFPrintPreview"));
            EXPECT_FALSE(action->statusTip().isEmpty()) << action->objectName().toStdString();
        }
    }
}

TEST_F(CommandsTest, MnemonicsOfAMenuAreItsOwn) {
    for (QAction* const menu : window->menuBar()->actions()) {
        std::map<QString, QString> taken;
        for (QAction* const action : menu->menu()->actions()) {
            const QString text = action->text();
            const auto mark = text.indexOf(QLatin1Char('&'));
            if (mark < 0)
                continue;
            const QString letter = text.mid(mark + 1, 1).toLower();
            EXPECT_FALSE(taken.contains(letter)) << text.toStdString() << " and " << taken[letter].toStdString();
            taken[letter] = text;
        }
    }
}

TEST_F(CommandsTest, ShortcutsAreTheirCommandsOwn) {
    std::map<QString, QString> taken;
    for (const QAction* const action : window->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly)) {
        for (const QKeySequence& keys : action->shortcuts()) {
            EXPECT_FALSE(taken.contains(keys.toString())) << action->objectName().toStdString();
            taken[keys.toString()] = action->objectName();
        }
    }
}

class RecentMenuTest : public CommandsTest {
  protected:
    RecentMenu& Menu() { return *window->findChild<RecentMenu*>(); }
    QList<QAction*> Entries() {
        Q_EMIT Menu().aboutToShow();
        return Menu().actions();
    }
};

TEST_F(RecentMenuTest, AFileIsOpenedFromItAndOneThatIsGoneIsGrey) {
    RecentFiles recent(store);
    recent.Add(u"/gone/away.css");
    recent.Add(MakeFile("b & c.css", "b {}"));
    const QList<QAction*> entries = Entries();
    EXPECT_TRUE(entries.at(0)->text().startsWith(QStringLiteral("&1  ")));
    EXPECT_TRUE(entries.at(0)->text().endsWith(QStringLiteral("b && c.css")));
    EXPECT_FALSE(entries.at(1)->isEnabled());
    entries.at(1)->trigger();
    EXPECT_EQ(Captions(*window), QStringList({"a.css"}));
    entries.at(0)->trigger();
    EXPECT_EQ(Captions(*window).first(), QStringLiteral("b & c.css"));
    EXPECT_EQ(recent.Read().size(), 2U) << "the entry stays where it is";
}

TEST_F(RecentMenuTest, ItCanBeCleared) {
    RecentFiles(store).Add(u"/a\nb.css");
    const QList<QAction*> entries = Entries();
    EXPECT_FALSE(entries.at(0)->text().contains(QLatin1Char('\n')));
    QAction* const clearing = Menu().findChild<QAction*>(QStringLiteral("miFClearOpen"));
    ASSERT_NE(clearing, nullptr);
    clearing->trigger();
    EXPECT_TRUE(RecentFiles(store).Read().empty());
    EXPECT_FALSE(Entries().at(0)->isEnabled());
}

}  // namespace
}  // namespace tintora
