#include "preview/qt/dlgPreviewDocuments.h"

#include "PreviewDialogFixture.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace tintora {
namespace {

/// The ways to close the dialog, and whether they store the list.
struct DocumentClosingCase {
    const char* what;
    void (*close)(QDialog& dialog);
    bool isStored;
};

const std::vector<DocumentClosingCase> DocumentClosingCases = {
    {"OK", [](QDialog& dialog) { dialog.findChild<QPushButton*>(QStringLiteral("OKButton"))->click(); }, true},
    {"Enter in the list", [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); }, true},
    {"Cancel", [](QDialog& dialog) { dialog.findChild<QPushButton*>(QStringLiteral("CancelButton"))->click(); }, false},
    {"Esc", [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape); }, false},
    {"the window's button", [](QDialog& dialog) { dialog.close(); }, false},
};

/// What becomes of the document in use when the list is stored.
struct InUseCase {
    const char* what;
    /// The document in use, and the one that is removed; "" for none. They exist below the folder of the test.
    const char* inUse;
    const char* removed;
    /// What is stored as the one in use afterwards.
    const char* afterwards;
};

const std::vector<InUseCase> InUseCases = {
    {"it is removed", "a.html", "a.html", ""},
    {"another is removed", "a.html", "b.html", "a.html"},
    {"nothing is removed", "a.html", "", "a.html"},
    {"it was never in the list", "c.html", "a.html", "c.html"},
    {"it doesn't exist, and the default is in use", "missing.html", "a.html", "missing.html"},
};

class dlgPreviewDocumentsTest : public test::PreviewDialogTest {
  protected:
    void Open() {
        dialog_ = std::make_unique<dlgPreviewDocuments>(documents_, questions_);
        Show(*dialog_);
    }

    [[nodiscard]] PathList& List() const { return Find<PathList>(*dialog_, "PreviewDocuments"); }

    [[nodiscard]] QStringList Rows() const {
        QStringList rows;
        for (int row = 0; row < List().topLevelItemCount(); ++row)
            rows.append(List().topLevelItem(row)->text(0));
        return rows;
    }

    /// As the desktop tells of it, over the list.
    void Drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QWidget* const target = List().viewport();
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
    }

    [[nodiscard]] static QUrl Url(const Text& path) { return QUrl::fromLocalFile(ToQString(path)); }

    PreviewDocuments documents_{store_, PathOf("program")};
    std::unique_ptr<dlgPreviewDocuments> dialog_;
};

TEST_F(dlgPreviewDocumentsTest, IsWorded) {
    Open();
    EXPECT_EQ(dialog_->windowTitle(), QStringLiteral("Manage Preview Documents"));
    EXPECT_EQ(Caption(*dialog_, "Add"), QStringLiteral("Add Document"));
    EXPECT_EQ(Caption(*dialog_, "Remove"), QStringLiteral("Remove Document"));
    EXPECT_EQ(Caption(*dialog_, "OKButton"), QStringLiteral("OK"));
    EXPECT_EQ(Caption(*dialog_, "CancelButton"), QStringLiteral("Cancel"));
}

TEST_F(dlgPreviewDocumentsTest, ShowsTheDocumentsThatTheUserKnows) {
    documents_.SaveAllPreviewFiles({u"/site/b.html", u"/missing/a.html"});
    Open();
    EXPECT_EQ(Rows(), QStringList({"/site/b.html", "/missing/a.html"}));
    EXPECT_EQ(List().topLevelItem(1)->toolTip(0), QStringLiteral("/missing/a.html"));
    EXPECT_FALSE(Button(*dialog_, "Remove").isEnabled());
}

TEST_F(dlgPreviewDocumentsTest, ShowsTheDefaultDocumentWhereThereIsNoOther) {
    Open();
    EXPECT_EQ(Rows(), QStringList("Default document"));
    EXPECT_EQ(ToText(List().topLevelItem(0)->toolTip(0)), documents_.GetDefaultPreviewFile());
    List().selectAll();
    EXPECT_FALSE(Button(*dialog_, "Remove").isEnabled());
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Delete);
    dialog_->RemoveOneDocument();
    EXPECT_EQ(Rows(), QStringList("Default document"));
    Button(*dialog_, "OKButton").click();
    EXPECT_EQ(Stored(setting::AllPreviewFiles), u"") << "it is never stored";
    EXPECT_EQ(documents_.GetAllPreviewFiles(), Texts{documents_.GetDefaultPreviewFile()});
}

TEST_F(dlgPreviewDocumentsTest, HasTheDefaultDocumentMakeRoomAndComeBack) {
    Open();
    asked_.answers = {{QStringLiteral("/a.html")}};
    Button(*dialog_, "Add").click();
    EXPECT_EQ(Rows(), QStringList("/a.html"));
    EXPECT_TRUE(Button(*dialog_, "Remove").isEnabled()) << "what was added is selected";
    Button(*dialog_, "Remove").click();
    EXPECT_EQ(Rows(), QStringList("Default document"));
    EXPECT_FALSE(Button(*dialog_, "Remove").isEnabled());
}

TEST_F(dlgPreviewDocumentsTest, AddsTheDocumentsThatAreChosen) {
    Open();
    const QString standard = ToQString(documents_.GetDefaultPreviewFile());
    asked_.answers = {{"/a.html", "/b.html"}, {}, {"/b.html", "/c d.htm"}, {standard}};
    for (int click = 0; click < 4; ++click)
        Button(*dialog_, "Add").click();
    const FilesWanted& wanted = asked_.wanted.front();
    EXPECT_EQ(wanted.title, QStringLiteral("Locate Preview Document"));
    EXPECT_EQ(wanted.filters, QStringLiteral("HTML Files (*.htm *.html);;text (*.txt);;All Files (*)"));
    EXPECT_EQ(wanted.kind, FilesWanted::Kind::Documents);
    EXPECT_TRUE(wanted.isSeveral);
    EXPECT_EQ(asked_.parents.front(), dialog_.get());
    EXPECT_EQ(Rows(), QStringList({"/a.html", "/b.html", "/c d.htm"})) << "each once, and not the default one";
    EXPECT_EQ(store_.Size(), 0U) << "nothing is stored before OK";
    Button(*dialog_, "OKButton").click();
    EXPECT_EQ(documents_.GetAllPreviewFiles(), (Texts{u"/a.html", u"/b.html", u"/c d.htm"}));
}

TEST_F(dlgPreviewDocumentsTest, SelectsADocumentThatIsInTheListAlready) {
    documents_.SaveAllPreviewFiles({u"/a.html", u"/b.html"});
    Open();
    List().SelectPath(1);
    asked_.answers = {{QStringLiteral("/a.html")}};
    dialog_->AddOneDocument();
    EXPECT_EQ(Rows(), QStringList({"/a.html", "/b.html"}));
    EXPECT_EQ(List().currentIndex().row(), 0);
}

TEST_F(dlgPreviewDocumentsTest, TakesFilesThatAreDropped) {
    const Text page = files_.Write("site/with blank #%\xD0\xB6.html", "");
    const Text second = files_.Write("site/second.html", "");
    Open();
    Drop({Url(page), Url(PathOf("site")), Url(PathOf("site/missing.html")),
          QUrl(QStringLiteral("https://example.org/a.html")), Url(documents_.GetDefaultPreviewFile()), Url(page),
          Url(second)});
    EXPECT_EQ(List().Paths(), (Texts{page, second})) << "files that exist, each once";
    EXPECT_EQ(store_.Size(), 0U);
    QMimeData text;
    text.setText(QStringLiteral("a.html"));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(dialog_.get(), &enter);
    EXPECT_FALSE(enter.isAccepted()) << "a text is no file";
}

TEST_F(dlgPreviewDocumentsTest, RemovesWhatIsSelected) {
    documents_.SaveAllPreviewFiles({u"/a", u"/b", u"/c", u"/d"});
    Open();
    Select(List(), {0, 2});
    EXPECT_TRUE(Button(*dialog_, "Remove").isEnabled());
    Button(*dialog_, "Remove").click();
    EXPECT_EQ(Rows(), QStringList({"/b", "/d"}));
    EXPECT_EQ(List().selectedItems().size(), 1);
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(Rows(), QStringList("/d"));
    QTest::keyClick(&List(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(Rows(), QStringList("Default document"));
    EXPECT_EQ(documents_.GetAllPreviewFiles().size(), 4U) << "nothing is stored before OK";
}

TEST_F(dlgPreviewDocumentsTest, StoresByOKAndKeepsAllSettingsOtherwise) {
    for (const DocumentClosingCase& row : DocumentClosingCases) {
        SCOPED_TRACE(row.what);
        store_ = MemorySettingsStore();
        documents_.SaveAllPreviewFiles({u"/a", u"/b"});
        documents_.SetPreviewFile(files_.Write("inUse.html", ""));
        Open();
        asked_.answers = {{QStringLiteral("/c")}};
        dialog_->AddOneDocument();
        Select(List(), {0});
        dialog_->RemoveOneDocument();
        List().setFocus();
        row.close(*dialog_);
        EXPECT_FALSE(dialog_->isVisible());
        EXPECT_EQ(dialog_->result() == QDialog::Accepted, row.isStored);
        EXPECT_EQ(documents_.GetAllPreviewFiles(), (row.isStored ? Texts{u"/b", u"/c"} : Texts{u"/a", u"/b"}));
        EXPECT_EQ(documents_.GetPreviewFile(), PathOf("inUse.html"));
        EXPECT_EQ(store_.Size(), 2U);
    }
}

TEST_F(dlgPreviewDocumentsTest, TellsItsCallerWhetherToRefresh) {
    for (const char* const button : {"OKButton", "CancelButton"}) {
        dlgPreviewDocuments dialog(documents_, questions_);
        QTimer::singleShot(0, &dialog, [&] {
            EXPECT_TRUE(dialog.isModal() && dialog.isVisible());
            Button(dialog, button).click();
        });
        EXPECT_EQ(dialog.ManagePreviewDocuments(), std::string(button) == "OKButton");
    }
}

TEST_F(dlgPreviewDocumentsTest, FallsBackToTheDefaultDocumentWhereTheOneInUseIsRemoved) {
    for (const InUseCase& row : InUseCases) {
        SCOPED_TRACE(row.what);
        documents_.SaveAllPreviewFiles(
            {files_.Write("a.html", ""), files_.Write("b.html", ""), PathOf("missing.html")});
        static_cast<void>(files_.Write("c.html", ""));
        documents_.SetPreviewFile(PathOf(row.inUse));
        Open();
        if (*row.removed != '\0') {
            Select(List(), {*row.removed - 'a'});
            dialog_->RemoveOneDocument();
        }
        Button(*dialog_, "OKButton").click();
        EXPECT_EQ(Stored(setting::PreviewFile), *row.afterwards == '\0' ? Text() : PathOf(row.afterwards));
    }
}

TEST_F(dlgPreviewDocumentsTest, KeepsWhateverAPathHolds) {
    const Texts paths = {u"/a b.html",      u"/50% #1?.html", u"/it's \"q\".html",
                         u"/\x0436.html",   u"/a^^^b.html",   u"/a&b.html",
                         u"/<b>b</b>.html", u"/n\nl.html",    u"/" + Text(3000, u'x') + u".html"};
    documents_.SaveAllPreviewFiles(paths);
    Open();
    for (int row = 1; row < List().topLevelItemCount(); ++row) {
        EXPECT_EQ(List().visualItemRect(List().topLevelItem(row)).height(),
                  List().visualItemRect(List().topLevelItem(0)).height());
        EXPECT_FALSE(List().topLevelItem(row)->toolTip(0).contains(QStringLiteral("<b>")));
    }
    EXPECT_EQ(List().textElideMode(), Qt::ElideMiddle);
    EXPECT_LE(List().columnWidth(0), List().viewport()->width());
    Button(*dialog_, "OKButton").click();
    EXPECT_EQ(documents_.GetAllPreviewFiles(), paths);
}

TEST_F(dlgPreviewDocumentsTest, IsReachedFromTopToBottom) {
    documents_.SaveAllPreviewFiles({u"/a.html"});
    Open();
    List().SelectPath(0);
    EXPECT_EQ(TabOrder(*dialog_), QStringList({"PreviewDocuments", "Add", "Remove", "OKButton", "CancelButton"}));
}

TEST_F(dlgPreviewDocumentsTest, HasRoomForAllInASmallWindow) {
    Open();
    dialog_->resize(1, 1);
    QApplication::processEvents();
    EXPECT_LE(dialog_->width(), 360);
    EXPECT_LE(dialog_->height(), 240);
    for (const QWidget* const control : dialog_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(IsInside(*control)) << control->objectName().toStdString();
    EXPECT_GE(List().height(), 40);
}

}  // namespace
}  // namespace tintora
