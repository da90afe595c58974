#include "preview/qt/dlgPreviewBrowsers.h"

#include "PreviewDialogFixture.h"
#include "settings/PathLists.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

namespace tintora {
namespace {

struct FieldCase {
    const char* field;
    const char* finder;
    NamedBrowser browser;
    SettingKey key;
    /// A program that the default finds.
    const char* program;
    /// What the field is called where nothing is installed.
    const char* label;
};

const std::vector<FieldCase> FieldCases = {
    {"IELocation", "IEFinder", NamedBrowser::IE, setting::IELocation, "xdg-open", "Default browser"},
    {"NSLocation", "NSFinder", NamedBrowser::Netscape, setting::NetscapeLocation, "chromium", "Chromium"},
    {"OperaLocation", "OperaFinder", NamedBrowser::Opera, setting::OperaLocation, "opera", "Opera"},
    {"MozLocation", "MozFinder", NamedBrowser::Mozilla, setting::MozillaLocation, "firefox", "Firefox"},
};

/// Paths that are anything but plain.
const std::vector<const char*> OddPaths = {
    "/a b/web",   "/50% #1?/web", "/it's \"quoted\" $HOME/web", "/\xD0\xB6/\xE4\xB8\xAD",
    "/a^^^b/web", "/a&b/R&D",     "/<b>bold</b>/web",           "/n\nl/web",
    "/^/\\/web"};

/// The ways to close the dialog, and whether they store what it holds.
struct ClosingCase {
    const char* what;
    void (*close)(QDialog& dialog);
    bool isStored;
};

const std::vector<ClosingCase> ClosingCases = {
    {"OK", [](QDialog& dialog) { dialog.findChild<QPushButton*>(QStringLiteral("OKButton"))->click(); }, true},
    {"Enter in a field", [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); }, true},
    {"Enter in the list",
     [](QDialog& dialog) {
         dialog.findChild<PathList*>()->setFocus();
         QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
     },
     true},
    {"Cancel", [](QDialog& dialog) { dialog.findChild<QPushButton*>(QStringLiteral("CancelButton"))->click(); }, false},
    {"Esc", [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape); }, false},
    {"the window's button", [](QDialog& dialog) { dialog.close(); }, false},
};

class dlgPreviewBrowsersTest : public test::PreviewDialogTest {
  protected:
    void Open() {
        browsers_ = std::make_unique<WebBrowsers>(Browsers());
        dialog_ = std::make_unique<dlgPreviewBrowsers>(locations_, *browsers_, questions_);
        Show(*dialog_);
    }

    [[nodiscard]] PathList& List() const { return Find<PathList>(*dialog_, "PreviewBrowsers"); }
    [[nodiscard]] QLineEdit& Field(const char* name) const { return Find<QLineEdit>(*dialog_, name); }

    [[nodiscard]] QString LabelOf(const char* field) const {
        for (const QLabel* const label : dialog_->findChildren<QLabel*>()) {
            if (label->buddy() == &Field(field))
                return label->text().remove(QLatin1Char('&'));
        }
        return {};
    }

    /// The rows of the list: name and path.
    [[nodiscard]] QStringList Rows() const {
        QStringList rows;
        for (int row = 0; row < List().topLevelItemCount(); ++row)
            rows.append(List().topLevelItem(row)->text(0) + QStringLiteral(": ") + List().topLevelItem(row)->text(1));
        return rows;
    }

    /// The entries that the button for adding offers.
    [[nodiscard]] QList<QAction*> Offer() const {
        QMenu& menu = *Button(*dialog_, "Add").menu();
        menu.popup(QPoint());
        menu.close();
        return menu.actions();
    }

    [[nodiscard]] bool IsStored(const SettingKey& key) const {
        return store_.GetSetting(ApplicationTitle, key.section, key.key, u"nothing") != u"nothing";
    }

    BrowserLocations locations_ = Locations();
    std::unique_ptr<WebBrowsers> browsers_;
    std::unique_ptr<dlgPreviewBrowsers> dialog_;
};

TEST_F(dlgPreviewBrowsersTest, IsWorded) {
    Open();
    EXPECT_EQ(dialog_->windowTitle(), QStringLiteral("Manage Preview Browsers"));
    QStringList texts;
    for (const QLabel* const label : dialog_->findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains(QStringLiteral("Add other browsers to Tintora by clicking Add Browser below.\r\n")));
    EXPECT_EQ(Caption(*dialog_, "Add"), QStringLiteral("Add Browser"));
    EXPECT_EQ(Caption(*dialog_, "Remove"), QStringLiteral("Remove Browser"));
    EXPECT_EQ(Caption(*dialog_, "OKButton"), QStringLiteral("OK"));
    EXPECT_EQ(Caption(*dialog_, "CancelButton"), QStringLiteral("Cancel"));
    for (const FieldCase& row : FieldCases) {
        EXPECT_EQ(LabelOf(row.field), QString::fromUtf8(row.label));
        EXPECT_FALSE(Find<QToolButton>(*dialog_, row.finder).toolTip().isEmpty());
    }
}

TEST_F(dlgPreviewBrowsersTest, ShowsWhatIsStoredAndTheDefaultWhereNothingIs) {
    Open();
    for (const FieldCase& row : FieldCases)
        EXPECT_EQ(Field(row.field).text() + Field(row.field).placeholderText(), QStringLiteral("Not found"));
    for (const FieldCase& row : FieldCases)
        static_cast<void>(MakeProgram(std::string("bin/") + row.program));
    Open();
    for (const FieldCase& row : FieldCases)
        EXPECT_EQ(ToText(Field(row.field).text()), PathOf(std::string("bin/") + row.program));
    for (const FieldCase& row : FieldCases)
        locations_.Save(row.browser, u"/missing/" + TextFromUtf8(row.field));
    Open();
    for (const FieldCase& row : FieldCases)
        EXPECT_EQ(Field(row.field).text(), QStringLiteral("/missing/%1").arg(QString::fromUtf8(row.field)));
}

TEST_F(dlgPreviewBrowsersTest, NamesTheFieldsByWhatIsAtTheirLocations) {
    locations_.Save(NamedBrowser::Netscape, MakeProgram("bin/blink"));
    locations_.Save(NamedBrowser::Mozilla, MakeProgram("bin/plain"));
    Declare("share/blink.desktop", "Name=Blink & Co\nExec=blink %u");
    Open();
    EXPECT_EQ(LabelOf("NSLocation"), QStringLiteral("Blink  Co")) << "a mark is doubled, and no mnemonic";
    EXPECT_EQ(LabelOf("MozLocation"), QStringLiteral("plain"));
    EXPECT_EQ(LabelOf("OperaLocation"), QStringLiteral("Opera"));
}

TEST_F(dlgPreviewBrowsersTest, GivesEachControlAMnemonicOfItsOwn) {
    Open();
    QString letters;
    for (const QLabel* const label : dialog_->findChildren<QLabel*>()) {
        if (label->buddy() != nullptr)
            letters += QKeySequence::mnemonic(label->text()).toString().right(1);
    }
    for (const char* const button : {"Add", "Remove"})
        letters += QKeySequence::mnemonic(Button(*dialog_, button).text()).toString().right(1);
    EXPECT_EQ(letters.size(), 6);
    for (const QChar letter : letters)
        EXPECT_EQ(letters.count(letter), 1) << letters.toStdString();
}

TEST_F(dlgPreviewBrowsersTest, FindsAProgramForEachField) {
    Open();
    for (const FieldCase& row : FieldCases) {
        asked_.answers = {{QStringLiteral("/opt/%1").arg(QString::fromUtf8(row.field))}};
        Find<QToolButton>(*dialog_, row.finder).click();
        EXPECT_EQ(Field(row.field).text(), QStringLiteral("/opt/%1").arg(QString::fromUtf8(row.field)));
        EXPECT_EQ(asked_.wanted.back().kind, FilesWanted::Kind::Programs);
        EXPECT_EQ(asked_.parents.back(), dialog_.get());
        Find<QToolButton>(*dialog_, row.finder).click();
        EXPECT_EQ(Field(row.field).text(), QStringLiteral("/opt/%1").arg(QString::fromUtf8(row.field)))
            << "a question that is cancelled changes nothing";
    }
    EXPECT_EQ(asked_.wanted.size(), 8U);
    EXPECT_EQ(store_.Size(), 0U) << "nothing is stored before OK";
}

TEST_F(dlgPreviewBrowsersTest, AddsTheProgramsThatAreChosen) {
    const Text program = MakeProgram("opt/web");
    const QString path = ToQString(program);
    Open();
    asked_.answers = {{path}, {}, {path}, {QStringLiteral("/other/web")}};
    for (int click = 0; click < 4; ++click)
        Button(*dialog_, "Add").click();
    EXPECT_EQ(asked_.wanted.size(), 4U);
    EXPECT_EQ(asked_.wanted.front().title, QStringLiteral("Locate Preview Browser"));
    EXPECT_EQ(asked_.wanted.front().kind, FilesWanted::Kind::Programs);
    EXPECT_FALSE(asked_.wanted.front().isSeveral);
    EXPECT_EQ(Rows(), QStringList({"web: " + path, "web: /other/web"})) << "each once";
    EXPECT_EQ(List().currentItem()->text(1), QStringLiteral("/other/web"));
}

TEST_F(dlgPreviewBrowsersTest, SelectsWhatIsInTheListAlreadyInsteadOfAddingIt) {
    const Text program = MakeProgram("opt/web");
    std::filesystem::create_symlink(files_.FilePath("opt/web"), files_.FilePath("opt/link"));
    locations_.SaveAllPreviewBrowsers({program, u"/other"});
    Open();
    List().SelectPath(1);
    asked_.answers = {{ToQString(PathOf("opt/link"))}};
    Button(*dialog_, "Add").click();
    EXPECT_EQ(List().Paths(), (Texts{program, u"/other"})) << "a link leads to the same program";
    EXPECT_EQ(List().currentIndex().row(), 0);
    EXPECT_EQ(List().selectedItems().size(), 1);
}

TEST_F(dlgPreviewBrowsersTest, OffersTheBrowsersThatTheSystemDeclares) {
    const Text beta = MakeProgram("bin/beta");
    const Text alpha = MakeProgram("bin/alpha");
    Declare("share/b.desktop", "Name=Beta & Gamma\nExec=beta %u");
    Declare("share/a.desktop", "Name=Alpha\nExec=alpha %u");
    Declare("share/c.desktop", "Name=Missing\nExec=missing %u");
    Open();
    QList<QAction*> offer = Offer();
    ASSERT_EQ(offer.size(), 4);
    EXPECT_EQ(offer[0]->text(), QStringLiteral("Alpha"));
    EXPECT_EQ(offer[1]->text(), QStringLiteral("Beta && Gamma"));
    EXPECT_TRUE(offer[2]->isSeparator());
    EXPECT_EQ(offer[3]->text(), QStringLiteral("&Other program…"));
    offer[1]->trigger();
    EXPECT_EQ(Rows(), QStringList("Beta & Gamma: " + ToQString(beta)));
    offer = Offer();
    EXPECT_TRUE(offer[0]->isEnabled());
    EXPECT_FALSE(offer[1]->isEnabled()) << "it is in the list";
    asked_.answers = {{ToQString(alpha)}};
    offer[3]->trigger();
    EXPECT_EQ(List().Paths(), (Texts{beta, alpha}));
    Select(List(), {0});
    Button(*dialog_, "Remove").click();
    EXPECT_TRUE(Offer()[1]->isEnabled());
}

TEST_F(dlgPreviewBrowsersTest, OffersByTheKeyboard) {
    const Text alpha = MakeProgram("bin/alpha");
    Declare("share/a.desktop", "Name=Alpha\nExec=alpha %u");
    Open();
    Button(*dialog_, "Add").setFocus();
    QTimer::singleShot(0, dialog_.get(), [] {
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    });
    QTest::keyClick(&Button(*dialog_, "Add"), Qt::Key_Space);
    EXPECT_EQ(List().Paths(), Texts{alpha});
}

TEST_F(dlgPreviewBrowsersTest, RemovesWhatIsSelected) {
    locations_.SaveAllPreviewBrowsers({u"/a", u"/b", u"/c", u"/d", u"/e"});
    Open();
    EXPECT_FALSE(Button(*dialog_, "Remove").isEnabled());
    Select(List(), {3, 1});
    EXPECT_TRUE(Button(*dialog_, "Remove").isEnabled());
    Button(*dialog_, "Remove").click();
    EXPECT_EQ(List().Paths(), (Texts{u"/a", u"/c", u"/e"}));
    EXPECT_EQ(List().currentItem()->text(1), QStringLiteral("/c")) << "the next";
    List().SelectPath(2);
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(List().Paths(), (Texts{u"/a", u"/c"}));
    EXPECT_EQ(List().currentItem()->text(1), QStringLiteral("/c")) << "the last";
    QTest::keyClick(&List(), Qt::Key_Delete);
    QTest::keyClick(&List(), Qt::Key_Delete);
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(List().Paths(), Texts());
    EXPECT_FALSE(Button(*dialog_, "Remove").isEnabled());
    EXPECT_EQ(locations_.GetAllPreviewBrowsers().size(), 5U) << "nothing is stored before OK";
}

TEST_F(dlgPreviewBrowsersTest, KeepsTheListWhereAFieldHasTheDeleteKey) {
    locations_.SaveAllPreviewBrowsers({u"/a"});
    Open();
    List().SelectPath(0);
    Field("IELocation").setText(QStringLiteral("/xy"));
    Field("IELocation").setFocus();
    Field("IELocation").setCursorPosition(1);
    QTest::keyClick(&Field("IELocation"), Qt::Key_Delete);
    EXPECT_EQ(Field("IELocation").text(), QStringLiteral("/y"));
    EXPECT_EQ(List().Paths(), Texts{u"/a"});
}

TEST_F(dlgPreviewBrowsersTest, StoresByOKAndKeepsAllSettingsOtherwise) {
    for (const ClosingCase& row : ClosingCases) {
        SCOPED_TRACE(row.what);
        store_ = MemorySettingsStore();
        locations_.Save(NamedBrowser::Opera, u"/old/opera");
        locations_.SaveAllPreviewBrowsers({u"/a", u"/b"});
        const std::size_t before = store_.Size();
        Open();
        Field("OperaLocation").setText(QStringLiteral("/new/opera"));
        Field("MozLocation").setText(QStringLiteral("/new/firefox"));
        Select(List(), {0});
        dialog_->RemoveOneBrowser();
        asked_.answers = {{QStringLiteral("/c")}};
        dialog_->AddOneBrowser();
        Field("IELocation").setFocus();
        row.close(*dialog_);
        EXPECT_FALSE(dialog_->isVisible());
        EXPECT_EQ(dialog_->result() == QDialog::Accepted, row.isStored);
        EXPECT_EQ(Stored(setting::OperaLocation), row.isStored ? u"/new/opera" : u"/old/opera");
        EXPECT_EQ(Stored(setting::MozillaLocation), row.isStored ? u"/new/firefox" : u"");
        EXPECT_EQ(locations_.GetAllPreviewBrowsers(), (row.isStored ? Texts{u"/b", u"/c"} : Texts{u"/a", u"/b"}));
        EXPECT_EQ(store_.Size(), row.isStored ? before + 1 : before);
    }
}

TEST_F(dlgPreviewBrowsersTest, TellsItsCallerWhetherToRefresh) {
    for (const char* const button : {"OKButton", "CancelButton"}) {
        browsers_ = std::make_unique<WebBrowsers>(Browsers());
        dlgPreviewBrowsers dialog(locations_, *browsers_, questions_);
        QTimer::singleShot(0, &dialog, [&] {
            EXPECT_TRUE(dialog.isModal() && dialog.isVisible());
            Button(dialog, button).click();
        });
        EXPECT_EQ(dialog.ManagePreviewBrowsers(), std::string(button) == "OKButton");
    }
}

TEST_F(dlgPreviewBrowsersTest, StoresNoDefault) {
    for (const FieldCase& row : FieldCases)
        static_cast<void>(MakeProgram(std::string("bin/") + row.program));
    Open();
    Button(*dialog_, "OKButton").click();
    for (const FieldCase& row : FieldCases)
        EXPECT_FALSE(IsStored(row.key)) << row.field;
    EXPECT_EQ(Stored(setting::AllPreviewBrowsers), u"");
}

TEST_F(dlgPreviewBrowsersTest, BringsTheDefaultBackWhereAFieldIsEmptied) {
    const Text firefox = MakeProgram("bin/firefox");
    locations_.Save(NamedBrowser::Mozilla, u"/old/firefox");
    Open();
    EXPECT_EQ(ToText(Field("MozLocation").placeholderText()), firefox);
    Field("MozLocation").clear();
    Button(*dialog_, "OKButton").click();
    EXPECT_EQ(locations_.Get(NamedBrowser::Mozilla), firefox);
}

TEST_F(dlgPreviewBrowsersTest, KeepsWhateverAPathHolds) {
    Texts paths;
    for (const char* const path : OddPaths)
        paths.push_back(TextFromUtf8(path));
    locations_.SaveAllPreviewBrowsers(paths);
    locations_.Save(NamedBrowser::Opera, u"/a&b/<i>\x0436</i> \"%\"");
    Open();
    const int height = List().visualItemRect(List().topLevelItem(0)).height();
    for (int row = 0; row < List().topLevelItemCount(); ++row) {
        const QTreeWidgetItem& item = *List().topLevelItem(row);
        EXPECT_FALSE(item.toolTip(1).contains(QStringLiteral("<b>"))) << "no markup";
        EXPECT_EQ(List().visualItemRect(&item).height(), height) << row;
    }
    Button(*dialog_, "OKButton").click();
    EXPECT_EQ(locations_.GetAllPreviewBrowsers(), paths);
    EXPECT_EQ(locations_.Get(NamedBrowser::Opera), u"/a&b/<i>\x0436</i> \"%\"");
}

TEST_F(dlgPreviewBrowsersTest, CutsTheMiddleOfLongPathsAndTellsThemWhole) {
    const Text path = u"/" + Text(3000, u'x') + u"/web";
    locations_.Save(NamedBrowser::Opera, path);
    Open();
    const int width = dialog_->sizeHint().width();
    locations_.SaveAllPreviewBrowsers({path});
    Declare("share/a.desktop", "Name=" + std::string(500, 'n') + "\nExec=opera");
    locations_.Save(NamedBrowser::Opera, MakeProgram("bin/opera"));
    Open();
    EXPECT_LT(dialog_->sizeHint().width(), width + 300);
    dialog_->resize(1, dialog_->height());
    EXPECT_EQ(List().textElideMode(), Qt::ElideMiddle);
    EXPECT_EQ(List().topLevelItem(0)->toolTip(0), ToQString(path));
    EXPECT_EQ(List().topLevelItem(0)->toolTip(1), ToQString(path));
    EXPECT_LE(List().columnWidth(0) + List().columnWidth(1), List().viewport()->width());
    Field("IELocation").setText(ToQString(path));
    EXPECT_EQ(Field("IELocation").toolTip(), ToQString(path));
}

TEST_F(dlgPreviewBrowsersTest, IsReachedFromTopToBottom) {
    locations_.SaveAllPreviewBrowsers({u"/a"});
    Open();
    List().SelectPath(0);
    EXPECT_EQ(TabOrder(*dialog_), QStringList({"IELocation", "IEFinder", "NSLocation", "NSFinder", "OperaLocation",
                                               "OperaFinder", "MozLocation", "MozFinder", "PreviewBrowsers", "Add",
                                               "Remove", "OKButton", "CancelButton"}));
}

TEST_F(dlgPreviewBrowsersTest, HasRoomForAllInASmallWindow) {
    locations_.SaveAllPreviewBrowsers({u"/" + Text(300, u'x') + u"/web"});
    Open();
    dialog_->resize(1, 1);
    QApplication::processEvents();
    EXPECT_LE(dialog_->width(), 420);
    EXPECT_LE(dialog_->height(), 380);
    for (const QWidget* const control : dialog_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        EXPECT_TRUE(control->isHidden() || IsInside(*control)) << control->objectName().toStdString();
    }
    EXPECT_GE(List().height(), 60);
    EXPECT_GE(List().columnWidth(1), 100) << "the paths";
}

}  // namespace
}  // namespace tintora
