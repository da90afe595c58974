#include "preview/qt/PreviewFileQuestions.h"

#include "PreviewDialogFixture.h"
#include "preview/BrowserPreviews.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QTreeView>

namespace tintora {
namespace {

class PreviewFileQuestionsTest : public test::PreviewDialogTest {
  protected:
    PreviewFileQuestionsTest() {
        program_ = MakeProgram("opt/my browser");
        plain_ = files_.Write("opt/<b>plain", "#!/bin/sh\n");
        std::filesystem::create_directory(files_.FilePath("opt/folder"));
    }

    /// Asks for a program in the folder of the programs, and has `act` do something with the dialogue.
    QStringList AskForProgram(const std::function<void(QFileDialog&)>& act) {
        QTimer::singleShot(0, &window_, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        FilesWanted wanted{.title = QStringLiteral("Title"), .kind = FilesWanted::Kind::Programs};
        wanted.folder = ToQString(PathOf("opt"));
        return AskFilesByDialog(wanted, &window_);
    }

    /// Types a path and presses Enter.
    static void Enter(QFileDialog& dialog, const Text& path) {
        auto* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        field->setText(ToQString(path));
        QTest::keyClick(field, Qt::Key_Return);
    }

    Text program_;
    Text plain_;
};

TEST_F(PreviewFileQuestionsTest, StartWhereOneOfTheirKindWasFoundLast) {
    asked_.answers = {{"/opt/a/web"}, {"/site/a/page.html"}, {}, {"/site/b/p.html", "/site/b/q.html"}, {"/bin/x"}, {}};
    EXPECT_EQ(questions_.LocateFile(ProgramFilter), u"/opt/a/web");
    EXPECT_EQ(questions_.LocateFile(PreviewDocumentFilters), u"/site/a/page.html");
    EXPECT_EQ(questions_.LocateBrowser(nullptr), u"");
    EXPECT_EQ(questions_.LocateDocuments(nullptr), (Texts{u"/site/b/p.html", u"/site/b/q.html"}));
    EXPECT_EQ(questions_.LocateBrowser(nullptr), u"/bin/x");
    EXPECT_EQ(questions_.LocateFile(PreviewDocumentFilters), u"");
    EXPECT_EQ(questions_.LocateFile(ProgramFilter), u"");
    QStringList folders;
    for (const FilesWanted& wanted : asked_.wanted)
        folders.append(wanted.folder);
    EXPECT_EQ(folders, QStringList({"/usr/bin", "", "/opt/a", "/site/a", "/opt/a", "/site/b", "/bin"}));
}

TEST_F(PreviewFileQuestionsTest, AskForOneFileOverTheWindow) {
    static_cast<void>(questions_.LocateFile(ProgramFilter));
    static_cast<void>(questions_.LocateFile(u"Pages (*.html);;All Files (*)"));
    ASSERT_EQ(asked_.wanted.size(), 2U);
    EXPECT_EQ(asked_.parents, (std::vector<QWidget*>{&window_, &window_}));
    EXPECT_EQ(asked_.wanted[0].kind, FilesWanted::Kind::Programs);
    EXPECT_EQ(asked_.wanted[0].title, QStringLiteral("Locate Preview Browser"));
    EXPECT_EQ(asked_.wanted[1].kind, FilesWanted::Kind::Documents);
    EXPECT_EQ(asked_.wanted[1].title, QStringLiteral("Locate Preview Document"));
    EXPECT_EQ(asked_.wanted[1].filters, QStringLiteral("Pages (*.html);;All Files (*)"));
    EXPECT_FALSE(asked_.wanted[0].isSeveral || asked_.wanted[1].isSeveral);
}

TEST_F(PreviewFileQuestionsTest, ShowFoldersAndProgramsAlone) {
    static_cast<void>(AskForProgram([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Title"));
        const auto* const view = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
        const auto names = [&] {
            QStringList found;
            for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
                found.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
            found.sort();
            return found;
        };
        constexpr int Limit = 10'000;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                return names() == QStringList({"folder", "my browser"});
            },
            Limit))
            << names().join(QLatin1Char('|')).toStdString();
    }));
}

TEST_F(PreviewFileQuestionsTest, TakeProgramsAlone) {
    bool isTold = false;
    const QStringList chosen = AskForProgram([&](QFileDialog& dialog) {
        QTimer::singleShot(0, &dialog, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            isTold = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->text().contains("&lt;b&gt;plain");
            box->accept();
        });
        Enter(dialog, plain_);
        EXPECT_TRUE(dialog.isVisible()) << "the question goes on";
        Enter(dialog, program_);
    });
    EXPECT_TRUE(isTold);
    EXPECT_EQ(chosen, QStringList(ToQString(program_)));
}

TEST_F(PreviewFileQuestionsTest, GiveNothingWhereTheyAreCancelledOrTheirWindowGoes) {
    EXPECT_EQ(AskForProgram([](QFileDialog& dialog) { dialog.reject(); }), QStringList());
    auto window = std::make_unique<QWidget>();
    QTimer::singleShot(0, window.get(), [&] { window.reset(); });
    EXPECT_EQ(AskFilesByDialog({.kind = FilesWanted::Kind::Programs}, window.get()), QStringList());
}

TEST_F(PreviewFileQuestionsTest, AskForSeveralDocumentsByTheirFilters) {
    QTimer::singleShot(0, &window_, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->nameFilters(), QStringList({"HTML Files (*.htm *.html)", "text (*.txt)", "All Files (*)"}));
        EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFiles);
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
        dialog->reject();
    });
    PreviewFileQuestions questions(window_);
    EXPECT_EQ(questions.LocateDocuments(&window_), Texts());
}

}  // namespace
}  // namespace tintora
