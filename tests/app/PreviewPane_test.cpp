#include "PreviewFixture.h"

#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

namespace tintora {
namespace {

using test::WaitFor;

class PreviewPaneTest : public test::WindowPreviewTest {};

TEST_F(PreviewPaneTest, ADroppedFolderIsNoPage) {
    QMimeData folders;
    folders.setUrls({QUrl::fromLocalFile(folder.path())});
    QDragEnterEvent enter({100, 100}, Qt::CopyAction, &folders, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Form(), &enter);
    QDropEvent drop({100, 100}, Qt::CopyAction, &folders, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Form(), &drop);
    EXPECT_EQ(Chooser().currentText(), "default.html");
    EXPECT_EQ(Settings(store).Get(setting::AllPreviewFiles), u"");
    EXPECT_EQ(Settings(store).Get(setting::PreviewFile), u"");
}

TEST_F(PreviewPaneTest, APageThatIsTakenFromTheListIsSeenNoMore) {
    Open("h1 {color: red}");
    window->SetLivePreview(false);
    PreviewDocuments(store, ToText(folder.filePath("program"))).ChooseDocument(MakeFile("a.html", "<h1>A</h1>"));
    Form().SetUpPreviewFiles();
    window->PreviewNow();
    const auto heading = [&] { return Ask(Field(), QStringLiteral("document.querySelector('h1').innerText")); };
    ASSERT_TRUE(WaitFor([&] { return heading() == "A"; }));
    QTimer::singleShot(0, window.get(), [] {
        const QWidget* const dialog = QApplication::activeModalWidget();
        dialog->findChild<QTreeWidget*>(QStringLiteral("PreviewDocuments"))->selectAll();
        dialog->findChild<QPushButton*>(QStringLiteral("Remove"))->click();
        dialog->findChild<QPushButton*>(QStringLiteral("OKButton"))->click();
    });
    Action("miPManageDocuments").trigger();
    EXPECT_TRUE(WaitFor([&] { return heading() == "Default"; }));
    EXPECT_EQ(Chooser().currentText(), "default.html");
}

TEST_F(PreviewPaneTest, ThePaneIsWordedAndLaidOut) {
    const auto* const tools = Form().findChild<QToolBar*>(QStringLiteral("Toolbar"));
    window->show();
    Pane("dwPreview").raise();
    ASSERT_TRUE(WaitFor([&] { return Form().isVisible(); }));
    EXPECT_EQ(LiveBox().text().remove(QLatin1Char('&')), "Live Preview");
    EXPECT_EQ(Chooser().toolTip(), "Choose the preview document");
    for (const char* const key : {"tbLocateFile", "tbClearCurrent", "tbPreviewNow", "PreviewInIE"}) {
        EXPECT_FALSE(Action(key).text().isEmpty()) << key;
        EXPECT_NE(Action(key).toolTip(), Action(key).text()) << key << " says more than its name";
    }
    for (const QWidget* const control :
         {static_cast<QWidget*>(&Chooser()), static_cast<QWidget*>(&Field()), static_cast<QWidget*>(&RuleField())})
        EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
    EXPECT_LT(Chooser().geometry().right(), tools->geometry().left());
    EXPECT_LT(tools->geometry().right(), LiveBox().geometry().left());
    EXPECT_GT(Field().geometry().top(), Chooser().geometry().bottom());
    EXPECT_EQ(Field().width(), Form().width());
}

TEST_F(PreviewPaneTest, TheTabKeyGoesThroughItAsItIsRead) {
    window->show();
    Pane("dwPreview").raise();
    ASSERT_TRUE(WaitFor([&] { return Form().isVisible(); }));
    const auto* const tools = Form().findChild<QToolBar*>(QStringLiteral("Toolbar"));
    QList<QWidget*> read = {&Chooser()};
    for (QAction* const tool : tools->actions())
        read.append(tools->widgetForAction(tool));
    read.append(&LiveBox());
    QList<QWidget*> reached;
    QWidget* next = &Chooser();
    do {
        if (read.contains(next))
            reached.append(next);
        EXPECT_TRUE(!read.contains(next) || (next->focusPolicy() & Qt::TabFocus) != 0);
        next = next->nextInFocusChain();
    } while (next != &Chooser());
    EXPECT_EQ(reached, read);
}

TEST_F(PreviewPaneTest, TheToolOfThePanePreviewsWithLivePreviewOff) {
    Open("h1 {color: red}");
    window->SetLivePreview(false);
    Document().CSSEditor().SetText(u"h1 {color: rgb(1, 2, 3)}");
    Action("tbPreviewNow").trigger();
    EXPECT_TRUE(Becomes(Field(), "h1", "color", "rgb(1, 2, 3)"));
}

TEST_F(PreviewPaneTest, TheButtonOfThePaneStartsTheFirstAndItsMenuTheOthers) {
    for (const char* const name : {"named", "further"})
        QFile(ToQString(MakeFile(name, "#!/bin/sh\n"))).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    Settings(store).Save(setting::IELocation, ToText(folder.filePath("named")));
    Settings(store).Save(setting::AllPreviewBrowsers, ToText(folder.filePath("further")));
    const auto programOfLast = [&] { return QFileInfo(ToQString(told.commands.back().front())).fileName(); };
    window->OpenOneStyleSheet(MakeFile("sheet.css", "h1 {color: red}"));
    auto* const tools = Form().findChild<QToolBar*>(QStringLiteral("Toolbar"));
    QAction* const action = tools->findChild<QAction*>(QStringLiteral("PreviewInIE"));
    action->trigger();
    EXPECT_EQ(programOfLast(), "named");
    window->show();
    Pane("dwPreview").raise();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QWidget* const button = tools->widgetForAction(action);
    ASSERT_TRUE(WaitFor([&] { return button->isVisible(); })) << "there is room for all tools";
    button->setFocus();
    ASSERT_TRUE(WaitFor([&] { return button->hasFocus(); }));
    QTimer::singleShot(0, window.get(), [] {
        QWidget* const menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        QTest::keyClick(menu, Qt::Key_Up);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::keyClick(button, Qt::Key_Down);
    EXPECT_EQ(programOfLast(), "further") << "the last of the menu, by the keys alone";
}

}  // namespace
}  // namespace tintora
