#include "PreviewFixture.h"
#include "text/StringTable.h"

#include <QMenu>
#include <QMimeData>
#include <QToolBar>

namespace tintora {
namespace {

using test::WaitFor;

class PreviewTest : public test::WindowPreviewTest {};

TEST_F(PreviewTest, TheSheetReachesThePixel) {
    Open("h1 {color: red}\nbody {background: rgb(0, 0, 255); margin: 0}");
    EXPECT_TRUE(Becomes(Field(), "h1", "color", "rgb(255, 0, 0)"));
    EXPECT_TRUE(
        WaitFor([&] { return Field().grab().toImage().pixelColor(Field().rect().center()) == QColor(0, 0, 255); }));
}

TEST_F(PreviewTest, WhatIsTypedIsSeenAMomentLater) {
    Open("h1 {color: red; }");
    Document().CSSEditor().SetSelection(15, 15);
    Type(" font-style: italic;");
    EXPECT_TRUE(Becomes(Field(), "h1", "font-style", "italic"));
    EXPECT_EQ(Style(Field(), "h1", "color"), "rgb(255, 0, 0)");
    EXPECT_EQ(Document().File(), ToText(folder.filePath("sheet.css")));
    EXPECT_TRUE(Document().IsDirty()) << "the user's file isn't written";
}

TEST_F(PreviewTest, HalfTypedTextLeavesAPage) {
    Open("h1 {color: red}");
    for (const char* const text :
         {"h1 {color: re", "h1 {", "}", "/* ", "@media {", "\"", "h1 {color: url(", "<style>", ""}) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(ShowsPageAfter(Field(), [&] {
            Document().CSSEditor().SetText(ToText(QString::fromUtf8(text)));
            window->PreviewNow();
        }));
        EXPECT_EQ(Ask(Field(), QStringLiteral("document.querySelector('h1').innerText")), "Default");
    }
}

TEST_F(PreviewTest, WithoutLivePreviewOnlyACommandShowsTheChange) {
    Open("h1 {color: red; }");
    window->SetLivePreview(false);
    QSignalSpy shown(&Field(), &PageView::PageShown);
    QSignalSpy ruleShown(&RuleField(), &PageView::PageShown);
    Document().CSSEditor().SetSelection(15, 15);
    Type(" font-style: italic;");
    Document().Window().UpdateOnIdle();
    Document().Window().LivePreview();
    Document().Window().DoLivePreview();
    QTest::qWait(50);
    EXPECT_TRUE(shown.empty());
    EXPECT_TRUE(ruleShown.empty());
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { Action("miPPreviewNow").trigger(); }));
    EXPECT_EQ(Style(Field(), "h1", "font-style"), "italic");
}

TEST_F(PreviewTest, BoxAndMenuShowTheSettingTogether) {
    Open("h1 {color: red}");
    QAction& item = Action("miPLivePreview");
    EXPECT_TRUE(LiveBox().isChecked());
    EXPECT_TRUE(item.isChecked());
    LiveBox().click();
    EXPECT_FALSE(LiveBox().isChecked());
    EXPECT_FALSE(item.isChecked());
    EXPECT_FALSE(Settings(store).GetLivePreviewOn());
    item.trigger();
    EXPECT_TRUE(LiveBox().isChecked());
    EXPECT_TRUE(item.isChecked());
    EXPECT_TRUE(Settings(store).GetLivePreviewOn());
}

TEST_F(PreviewTest, TheSettingIsShownFromTheStart) {
    Settings(store).SetLivePreviewOn(false);
    window->LoadStep(u"");
    EXPECT_FALSE(LiveBox().isChecked());
    EXPECT_FALSE(Action("miPLivePreview").isChecked());
}

TEST_F(PreviewTest, AHiddenPaneGetsItsFilesButLoadsNothing) {
    Pane("dwPreview").hide();
    Pane("dwPreviewRule").hide();
    window->LoadStep(MakeFile("sheet.css", "h1 {color: red}"));
    window->show();
    Document().Window().PreviewNow();
    QApplication::processEvents();
    EXPECT_EQ(Field().SeenFace(), nullptr);
    const QStringList made = TemporaryFiles();
    EXPECT_EQ(made.size(), 3) << qPrintable(made.join("\n"));
    EXPECT_EQ(made.filter(".css").size(), 1);
    // It shows the newest page once it is in view.
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { Pane("dwPreview").show(); }));
    EXPECT_EQ(Style(Field(), "h1", "color"), "rgb(255, 0, 0)");
}

TEST_F(PreviewTest, APaneBehindAnotherLoadsWhenItComesForward) {
    Open("p {color: rgb(1, 2, 3);}");
    EXPECT_FALSE(RuleField().isVisible()) << "the rule lies behind the page";
    EXPECT_EQ(RuleField().SeenFace(), nullptr);
    Pane("dwPreviewRule").raise();
    EXPECT_TRUE(Becomes(RuleField(), "p", "color", "rgb(1, 2, 3)"));
    EXPECT_FALSE(Field().isVisible());
    QSignalSpy shown(&Field(), &PageView::PageShown);
    Document().Window().PreviewNow();
    QApplication::processEvents();
    EXPECT_TRUE(shown.empty());
}

TEST_F(PreviewTest, TheRuleFollowsTheCaretAndThePageDoesNot) {
    Open("h1 {color: red}\np {color: rgb(0, 128, 0)}\n");
    Action("miPCurrentRule").trigger();
    ASSERT_TRUE(Becomes(RuleField(), "p", "color", "rgb(255, 0, 0)"));
    // Both are in view from here on.
    window->addDockWidget(Qt::BottomDockWidgetArea, &Pane("dwPreviewRule"));
    window->addDockWidget(Qt::TopDockWidgetArea, &Pane("dwPreview"));
    Pane("dwPreview").show();
    ASSERT_TRUE(WaitFor([&] { return Field().isVisible() && RuleField().isVisible(); }));
    Document().Window().DisableNextPreview();
    Document().Window().PreviewNow();
    ASSERT_TRUE(WaitFor([&] { return IsShowingNewest(Field()); }));
    QSignalSpy shown(&Field(), &PageView::PageShown);
    Document().CSSEditor().SetSelection(22, 22);
    EXPECT_TRUE(Becomes(RuleField(), "p", "color", "rgb(0, 128, 0)"));
    EXPECT_TRUE(shown.empty());
    window->SetLivePreview(false);
    QSignalSpy ruleShown(&RuleField(), &PageView::PageShown);
    Document().CSSEditor().SetSelection(6, 6);
    Document().Window().FollowCaretNow();
    QApplication::processEvents();
    EXPECT_TRUE(ruleShown.empty());
    ASSERT_TRUE(ShowsPageAfter(RuleField(), [&] { Action("miPCurrentRule").trigger(); }));
    EXPECT_EQ(Style(RuleField(), "p", "color"), "rgb(255, 0, 0)");
}

TEST_F(PreviewTest, TheFocusStaysInTheText) {
    Open("h1 {color: red}");
    QsciScintilla& control = Document().View().Control();
    control.setFocus();
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { Action("miPPreviewNow").trigger(); }));
    EXPECT_TRUE(control.hasFocus());
    ASSERT_TRUE(ShowsPageAfter(RuleField(), [&] { Action("miPCurrentRule").trigger(); }));
    EXPECT_TRUE(control.hasFocus());
}

TEST_F(PreviewTest, OfDroppedPagesTheLastIsTheOneInUse) {
    Open("h1 {color: red}");
    QMimeData pages;
    QList<QUrl> urls;
    for (const char* const name : {"a.html", "b.html", "c.html"})
        urls.append(QUrl::fromLocalFile(ToQString(MakeFile(name, QByteArray("<head></head><h1>") + name + "</h1>"))));
    pages.setUrls(urls);
    const auto drop = [&](QWidget& target) {
        QDragEnterEvent enter({100, 100}, Qt::CopyAction, &pages, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event({100, 100}, Qt::CopyAction, &pages, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
    };
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { drop(Form()); }));
    EXPECT_EQ(Chooser().count(), 3);
    EXPECT_EQ(Chooser().currentText(), "c.html");
    EXPECT_EQ(Ask(Field(), QStringLiteral("document.querySelector('h1').innerText")), "c.html");
    EXPECT_TRUE(Becomes(Field(), "h1", "color", "rgb(255, 0, 0)"));
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { drop(Field()); })) << "onto the page itself";
    EXPECT_EQ(Chooser().count(), 3) << "none is known twice";
}

TEST_F(PreviewTest, APageIsChosenAddedAndForgotten) {
    Open("h1 {color: red}");
    EXPECT_EQ(Chooser().currentText(), "default.html");
    EXPECT_FALSE(Action("tbClearCurrent").isEnabled()) << "the default page can't be forgotten";
    told.files = {ToQString(MakeFile("a.html", "<h1>A</h1>"))};
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { Action("tbLocateFile").trigger(); }));
    told.files = {ToQString(MakeFile("b.html", "<h1>B</h1>"))};
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { Action("tbLocateFile").trigger(); }));
    EXPECT_EQ(Chooser().currentText(), "b.html");
    told.files.clear();
    Action("tbLocateFile").trigger();
    EXPECT_EQ(Chooser().count(), 2) << "a cancelled question adds nothing";
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] {
        Chooser().setCurrentIndex(0);
        Q_EMIT Chooser().activated(0);
    }));
    EXPECT_EQ(Ask(Field(), QStringLiteral("document.querySelector('h1').innerText")), "A");
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { Action("tbClearCurrent").trigger(); }));
    EXPECT_EQ(Ask(Field(), QStringLiteral("document.querySelector('h1').innerText")), "Default");
    EXPECT_EQ(Chooser().count(), 1);
    EXPECT_EQ(Chooser().currentIndex(), -1) << "the default page is in use without being in the list";
    EXPECT_EQ(Chooser().placeholderText(), "default.html");
    EXPECT_TRUE(QFile::exists(folder.filePath("a.html"))) << "the page itself stays";
}

TEST_F(PreviewTest, PagesOfOneNameAreToldApartByTheirFolders) {
    QDir(folder.path()).mkpath("one");
    QDir(folder.path()).mkpath("two");
    const Texts previewFiles = {MakeFile("one/index.html", "1"), MakeFile("two/index.html", "2"),
                                MakeFile("a.html", "3")};
    PreviewDocuments(store, ToText(folder.filePath("program"))).SaveAllPreviewFiles(previewFiles);
    Form().SetUpPreviewFiles();
    EXPECT_EQ(Chooser().itemText(0), "index.html (one)");
    EXPECT_EQ(Chooser().itemText(1), "index.html (two)");
    EXPECT_EQ(Chooser().itemText(2), "a.html");
}

TEST_F(PreviewTest, ADocumentWithoutAFileIsPreviewedToo) {
    window->LoadStep(u"");
    window->show();
    QSignalSpy shown(&Field(), &PageView::PageShown);
    window->LoadNewDoc();
    ASSERT_TRUE(WaitFor([&] { return !shown.empty(); }));
    Type("h1 { color: blue; }");
    EXPECT_TRUE(Becomes(Field(), "h1", "color", "rgb(0, 0, 255)"));
}

/// Names that a shell, an address or a page could stumble over.
const char* const OddNames[] = {
    "with blank.css", "a#b.css",      "50%.css", "%41.css", "why?.css", "it's.css", "\"quoted\".css",
    "möwe.css",       "スタイル.css", "a&b.css", "<b>.css", "a;b.css",  "x+y.css",
};

TEST_F(PreviewTest, OddNamesOfSheetsAndPagesAreNoObstacle) {
    window->show();
    for (const char* const name : OddNames) {
        SCOPED_TRACE(name);
        const QString pageFolder = folder.filePath(QString::fromUtf8(name) + ".d");
        QDir().mkdir(pageFolder);
        const Text page = MakeFile((QByteArray(name) + ".d/" + name + ".html").constData(),
                                   "<head><link rel=stylesheet href=other.css></head><h1>x</h1>");
        MakeFile((QByteArray(name) + ".d/other.css").constData(), "h1 {font-style: italic}");
        PreviewDocuments(store, u"").ChooseDocument(page);
        ASSERT_TRUE(ShowsPageAfter(Field(), [&] { window->OpenOneStyleSheet(MakeFile(name, "h1 {color: red}")); }));
        EXPECT_TRUE(Becomes(Field(), "h1", "color", "rgb(255, 0, 0)"));
        EXPECT_EQ(Style(Field(), "h1", "font-style"), "italic") << "what the page links itself stays";
    }
    EXPECT_TRUE(window->close());
    EXPECT_EQ(TemporaryFiles(), QStringList());
}

TEST_F(PreviewTest, AWindowThatGoesUnclosedLeavesNoFilesEither) {
    Open("h1 {color: red; }");
    EXPECT_FALSE(TemporaryFiles().isEmpty());
    window.reset();
    EXPECT_EQ(TemporaryFiles(), QStringList());
}

/// Pages as preview documents.
struct PagePreview {
    const char* what;
    QByteArray bytes;
    const char* color;
};

QByteArray AsUtf16(const QString& text) {
    return QByteArray("\xFF\xFE", 2) + QByteArray(reinterpret_cast<const char*>(text.utf16()), 2 * text.size());
}

const PagePreview Pages[] = {
    {"as people write them", "<html><head><title>x</title></head><body><h1>x</h1></body></html>", "rgb(255, 0, 0)"},
    {"without the end of a head, which get no sheet", "<h1>x</h1>", "rgb(0, 0, 0)"},
    {"in UTF-16", AsUtf16(QStringLiteral("<html><head></head><h1>Wörter</h1>")), "rgb(255, 0, 0)"},
    {"with a script", "<head></head><body></body><script>document.body.innerHTML = '<h1>x</h1>'</script>",
     "rgb(255, 0, 0)"},
    {"of 10 MB", "<head></head><h1>x</h1>" + ("<p>" + QByteArray("Some words. ").repeated(1000)).repeated(830),
     "rgb(255, 0, 0)"},
    {"that redirect for ever", "<head><meta http-equiv=refresh content=0></head><h1>x</h1>", "rgb(255, 0, 0)"},
};

TEST_F(PreviewTest, PagesOfAllKindsShowTheSheet) {
    // A preview that nobody asked for would, after a while, have the large page loaded once more.
    Settings(store).SetLivePreviewOn(false);
    window->LoadStep(MakeFile("sheet.css", "h1 {color: red}"));
    window->show();
    int number = 0;
    for (const PagePreview& page : Pages) {
        SCOPED_TRACE(page.what);
        const QByteArray name = "page" + QByteArray::number(++number) + ".html";
        PreviewDocuments(store, u"").ChooseDocument(MakeFile(name.constData(), page.bytes));
        EXPECT_TRUE(ShowsPageAfter(Field(), [&] { window->PreviewNow(); }));
        EXPECT_TRUE(Becomes(Field(), "h1", "color", page.color));
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        EXPECT_EQ(file.readAll(), page.bytes) << "the user's page isn't touched";
    }
}

TEST_F(PreviewTest, APreviewThatCannotBeMadeLeavesThePicture) {
    Open("h1 {color: red}");
    const Text page = MakeFile("gone.html", "<h1>gone</h1>");
    PreviewDocuments(store, ToText(folder.filePath("program"))).ChooseDocument(page);
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { window->PreviewNow(); }));
    QFile::remove(folder.filePath("gone.html"));
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { window->PreviewNow(); }));
    EXPECT_EQ(Ask(Field(), QStringLiteral("document.querySelector('h1').innerText")), "Default") << "a missing page";
    QFile::remove(folder.filePath("program/Help_Files/Preview/default.html"));
    window->PreviewNow();
    QApplication::processEvents();
    EXPECT_EQ(Ask(Field(), QStringLiteral("document.querySelector('h1').innerText")), "Default") << "none at all";
    EXPECT_TRUE(told.messages.empty());
}

TEST_F(PreviewTest, LivePreviewLeavesNoFiles) {
    Open("h1 {color: red}");
    for (int round = 0; round < 20; ++round) {
        ASSERT_TRUE(ShowsPageAfter(Field(), [&] { window->PreviewNow(); }));
        EXPECT_LE(TemporaryFiles().size(), 5) << "a pair for each of two pages, and the rule's";
    }
    EXPECT_TRUE(window->close());
    EXPECT_EQ(TemporaryFiles(), QStringList());
}

TEST_F(PreviewTest, TheNextStartDeletesWhatACrashHasLeft) {
    Settings settings(store);
    settings.Save(setting::LastPreviewHTMLFile, MakeFile("ktTemp 1.html", "1"));
    settings.Save(setting::LastPreviewCSSFile, MakeFile("ktTemp 2.css", "2"));
    settings.Save(setting::LastCurrentRulePreviewFile, MakeFile("ktTemp 3.html", "3"));
    settings.Save(setting::FilesToDelete, MakeFile("ktTemp 4.css", "4") + u"^^^" + MakeFile("mine.html", "5"));
    window->LoadStep(u"");
    EXPECT_EQ(TemporaryFiles(), QStringList());
    EXPECT_TRUE(QFile::exists(folder.filePath("mine.html"))) << "only files of the preview are ever deleted";
}

TEST_F(PreviewTest, ALinkOpensInTheBrowser) {
    Open("h1 {color: red}");
    const Text page = MakeFile("links.html", "<a href='other.html' style='display: block; height: 50px'>other</a>");
    PreviewDocuments(store, u"").ChooseDocument(page);
    ASSERT_TRUE(ShowsPageAfter(Field(), [&] { window->PreviewNow(); }));
    QTest::mouseClick(Field().SeenFace()->focusProxy(), Qt::LeftButton, {}, {30, 30});
    EXPECT_TRUE(WaitFor([&] { return !told.addresses.empty(); }));
    EXPECT_EQ(told.addresses, QStringList(QUrl::fromLocalFile(folder.filePath("other.html")).toString()));
}

TEST_F(PreviewTest, WithoutADocumentNothingIsPreviewed) {
    window->LoadStep(u"");
    window->show();
    for (const char* const key : {"miPPreviewNow", "miPCurrentRule", "miPPreviewInIE", "miPPreviewIn1", "miEValidate",
                                  "tbPreviewNow", "PreviewInIE"})
        EXPECT_FALSE(Action(key).isEnabled()) << key;
    for (const char* const key : {"miPLivePreview", "miPManageDocuments", "miPManageBrowsers", "tbLocateFile"})
        EXPECT_TRUE(Action(key).isEnabled()) << key;
    told.files = {ToQString(MakeFile("a.html", "a"))};
    Action("tbLocateFile").trigger();
    EXPECT_EQ(Chooser().currentText(), "a.html");
    EXPECT_EQ(TemporaryFiles(), QStringList());
}

TEST_F(PreviewTest, TheToolPreviewsAsTheMenuDoes) {
    QAction& item = Action("miPPreviewNow");
    const auto* const special = window->findChild<QToolBar*>(QStringLiteral("Special"));
    ASSERT_NE(special, nullptr);
    EXPECT_TRUE(special->actions().contains(&item));
    EXPECT_TRUE(special->actions().contains(&Action("miEValidate")));
}

class BrowserCommandsTest : public PreviewTest {
  protected:
    BrowserCommandsTest() {
        for (const char* const name : {"named", "first", "second"})
            QFile(ToQString(MakeFile(name, "#!/bin/sh\n"))).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        Settings(store).Save(setting::IELocation, ToText(folder.filePath("named")));
        Pane("dwPreview").hide();
        Pane("dwPreviewRule").hide();
    }

    void AddFurther() {
        Settings(store).Save(setting::AllPreviewBrowsers,
                             ToText(folder.filePath("first") + "^^^" + folder.filePath("second")));
    }

    QStringList MenuTexts() {
        auto* const menu = window->findChild<QMenu*>(QStringLiteral("mnuPreview"));
        Q_EMIT menu->aboutToShow();
        QStringList texts;
        for (const QAction* const action : menu->actions()) {
            if (action->isVisible() && action->text().startsWith(QLatin1String("Preview in ")))
                texts.append(action->text());
        }
        return texts;
    }

    QString ProgramOfLast() const { return QFileInfo(ToQString(told.commands.back().front())).fileName(); }
};

TEST_F(BrowserCommandsTest, ABrowserIsStartedOnThePage) {
    window->LoadStep(MakeFile("sheet.css", "h1 {color: red}"));
    Action("miPPreviewInIE").trigger();
    ASSERT_EQ(told.commands.size(), 1u);
    EXPECT_EQ(ProgramOfLast(), "named");
    ASSERT_EQ(told.commands.back().size(), 2u);
    EXPECT_TRUE(QFile::exists(ToQString(told.commands.back()[1])));
    Q_EMIT Form().BrowserChosen(QStringLiteral("PreviewInIE"));
    EXPECT_EQ(told.commands.size(), 2u);
}

TEST_F(BrowserCommandsTest, TheMenusHaveFourBrowsersAndThenTheFurtherOnes) {
    window->LoadStep(MakeFile("sheet.css", "h1 {color: red}"));
    EXPECT_EQ(MenuTexts().size(), 4);
    EXPECT_EQ(MenuTexts().front(), "Preview in Default browser");
    AddFurther();
    EXPECT_EQ(MenuTexts().mid(4), QStringList({"Preview in first", "Preview in second"}));
    EXPECT_EQ(MenuTexts().size(), 6) << "also when it is shown again";
    Action("miPPreviewIn1").trigger();
    EXPECT_EQ(ProgramOfLast(), "first");
    auto* const menu = window->findChild<QMenu*>(QStringLiteral("mnuPreview"));
    for (QAction* const action : menu->actions()) {
        if (action->text() == QLatin1String("Preview in second"))
            action->trigger();
    }
    EXPECT_EQ(ProgramOfLast(), "second");
    store = MemorySettingsStore();
    EXPECT_EQ(MenuTexts().size(), 4);
}

TEST_F(BrowserCommandsTest, TheMenuOfThePaneHasTheSameEntries) {
    AddFurther();
    auto* const menu = Form().findChild<QMenu*>();
    Q_EMIT menu->aboutToShow();
    QStringList keys;
    for (const QAction* const action : menu->actions())
        keys.append(action->isSeparator() ? QStringLiteral("-") : action->objectName());
    EXPECT_EQ(keys, QStringList(
                        {"PreviewInIE", "PreviewInNS", "PreviewInOpera", "PreviewInMozilla", "-", "first", "second"}));
}

class ValidateTest : public test::WindowTest {};

TEST_F(ValidateTest, TheSheetGoesToTheValidator) {
    window->LoadStep(MakeFile("sheet.css", "a{color:red}"));
    window->ActiveDocument()->CSSEditor().SetText(u"b{color:50%}");
    window->findChild<QAction*>(QStringLiteral("miEValidate"))->trigger();
    ASSERT_EQ(told.pages.size(), 1u);
    EXPECT_NE(told.pages.front().find(u"?text=b%7Bcolor%3A50%25%7D&warning=1&profile=css2&usermedium=all"), Text::npos)
        << "the text of the editor, saved or not";
}

TEST_F(ValidateTest, WithoutTheWebThereIsAMessage) {
    told.isConnected = false;
    window->LoadStep(MakeFile("sheet.css", "a{color:red}"));
    window->findChild<QAction*>(QStringLiteral("miEValidate"))->trigger();
    EXPECT_TRUE(told.pages.empty());
    EXPECT_EQ(told.messages, QStringList(ToQString(LoadResourceString(1146))));
}

}  // namespace
}  // namespace tintora
