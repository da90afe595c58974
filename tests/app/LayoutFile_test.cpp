#include "shell/qt/LayoutFile.h"

#include "WorkspaceFixture.h"
#include "shell/Layouts.h"
#include "text/Encoding.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <random>
#include <sstream>

namespace tintora {
namespace {

using test::DesignedPanes;
using test::WindowWithPanes;

class LayoutFileTest : public testing::Test {
  protected:
    [[nodiscard]] QString Path() const { return folder.filePath(QStringLiteral("home/Layouts/current")); }

    [[nodiscard]] QByteArray Bytes() const {
        QFile file(Path());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }

    void Put(const QByteArray& bytes) const {
        QDir().mkpath(folder.filePath(QStringLiteral("home/Layouts")));
        QFile file(Path());
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    static void Expose(WindowWithPanes& panes) {
        panes.window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&panes.window));
    }

    /// What a user may have done.
    void SaveUnusual() const {
        WindowWithPanes panes;
        Expose(panes);
        UseLayout(panes.workspace, u"Edit");
        panes.workspace.SetPaneWidth(u"dwPropertiesEditor", 300);
        ASSERT_TRUE(SaveLayout(panes.workspace, Path()));
    }

    QTemporaryDir folder;
};

/// The places of all that is shown.
std::string PlacesOf(const WindowWithPanes& panes) {
    std::ostringstream places;
    places << panes.Shown() << "; " << panes.ShownToolbars();
    for (const Pane& pane : Panes) {
        const QRect place = panes.PaneOf(pane.key).geometry();
        if (panes.IsSeen(pane.key))
            places << "; " << place.x() << ' ' << place.y() << ' ' << place.width() << ' ' << place.height();
    }
    return places.str();
}

TEST_F(LayoutFileTest, AFreshWindowHasTheArrangementThatWasSaved) {
    for (const TextView name : {u"", u"Standard", u"Edit", u"Designer"}) {
        SCOPED_TRACE(Utf8FromText(name));
        std::string places;
        {
            WindowWithPanes panes;
            Expose(panes);
            UseLayout(panes.workspace, name);
            panes.workspace.SetPaneWidth(u"dwPropertiesEditor", 333);
            panes.workspace.HideToolbar(u"Special");
            ASSERT_TRUE(SaveLayout(panes.workspace, Path()));
            places = PlacesOf(panes);
        }
        WindowWithPanes shown;
        Expose(shown);
        EXPECT_NE(PlacesOf(shown), places);
        EXPECT_TRUE(OpenLayout(shown.workspace, Path()));
        EXPECT_EQ(PlacesOf(shown), places);

        WindowWithPanes unshown;
        EXPECT_TRUE(OpenLayout(unshown.workspace, Path()));
        Expose(unshown);
        EXPECT_EQ(PlacesOf(unshown), places);
    }
}

TEST_F(LayoutFileTest, AMaximizedWindowGetsItsSizesBack) {
    std::string places;
    {
        WindowWithPanes panes(QSize(400, 300));
        panes.window.setWindowState(Qt::WindowMaximized);
        Expose(panes);
        panes.workspace.SetPaneHeight(u"dwPreview", 310);
        ASSERT_TRUE(SaveLayout(panes.workspace, Path()));
        places = PlacesOf(panes);
    }
    WindowWithPanes panes(QSize(400, 300));
    panes.window.setWindowState(Qt::WindowMaximized);
    EXPECT_TRUE(OpenLayout(panes.workspace, Path()));
    Expose(panes);
    EXPECT_EQ(PlacesOf(panes), places);
}

TEST_F(LayoutFileTest, AWindowThatComesUpSmallerThanTheArrangementStandsIt) {
    {
        WindowWithPanes panes;
        panes.window.resize(1900, 1000);
        Expose(panes);
        ASSERT_TRUE(SaveLayout(panes.workspace, Path()));
    }
    WindowWithPanes panes;
    panes.window.setWindowState(Qt::WindowMaximized);
    EXPECT_TRUE(OpenLayout(panes.workspace, Path()));
    EXPECT_FALSE(panes.window.isVisible()) << "nobody has seen it yet";
    EXPECT_TRUE(panes.window.isMaximized());
    Expose(panes);
    for (const int width : {1200, 500, 320, 900}) {
        panes.window.showNormal();
        panes.window.resize(width, 400);
        QCoreApplication::processEvents();
        EXPECT_TRUE(panes.window.isVisible());
    }
}

TEST_F(LayoutFileTest, APaneThatFloatedBeyondAllScreensIsBroughtBack) {
    {
        WindowWithPanes panes;
        Expose(panes);
        panes.PaneOf(u"dwInfo").setFloating(true);
        panes.PaneOf(u"dwInfo").setGeometry(9000, 7000, 300, 200);
        ASSERT_TRUE(SaveLayout(panes.workspace, Path()));
    }
    WindowWithPanes panes;
    EXPECT_TRUE(OpenLayout(panes.workspace, Path()));
    Expose(panes);
    const QRect place = panes.PaneOf(u"dwInfo").geometry();
    EXPECT_TRUE(panes.PaneOf(u"dwInfo").isFloating());
    EXPECT_TRUE(panes.PaneOf(u"dwInfo").isVisible());
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(place));
    EXPECT_EQ(place.size(), QSize(300, 200));
}

struct DamageCase {
    const char* what;
    QByteArray (*damage)(const QByteArray& file);
};

QByteArray WithArrangement(const QByteArray& arrangement) {
    return "Tintora layout 1 " + QByteArray::number(arrangement.size()) + ' ' +
           QCryptographicHash::hash(arrangement, QCryptographicHash::Sha256).toHex() + '\n' + arrangement;
}

const std::vector<DamageCase> Damages = {
    {"empty", [](const QByteArray&) { return QByteArray(); }},
    {"no line end", [](const QByteArray& file) { return file.left(file.indexOf('\n')); }},
    {"no arrangement", [](const QByteArray& file) { return file.left(file.indexOf('\n') + 1); }},
    {"no header", [](const QByteArray& file) { return file.mid(file.indexOf('\n') + 1); }},
    {"another version", [](const QByteArray& file) { return QByteArray(file).replace("layout 1 ", "layout 2 "); }},
    {"another program's", [](const QByteArray& file) { return QByteArray(file).replace("Tintora", "Another"); }},
    {"one byte too many", [](const QByteArray& file) { return QByteArray(file + 'x'); }},
    {"twice", [](const QByteArray& file) { return QByteArray(file + file); }},
    {"text", [](const QByteArray&) { return QByteArray("h1 { color: red }\n"); }},
    {"an empty arrangement", [](const QByteArray&) { return WithArrangement({}); }},
    {"whole bytes that are no arrangement", [](const QByteArray&) { return WithArrangement("nothing of the kind"); }},
    {"too large", [](const QByteArray&) { return WithArrangement(QByteArray(2'000'000, 'x')); }},
};

TEST_F(LayoutFileTest, ADamagedFileLeavesTheDesignedArrangement) {
    SaveUnusual();
    const QByteArray whole = Bytes();
    for (const DamageCase& row : Damages) {
        SCOPED_TRACE(row.what);
        Put(row.damage(whole));
        WindowWithPanes panes;
        EXPECT_FALSE(OpenLayout(panes.workspace, Path()));
        Expose(panes);
        EXPECT_EQ(panes.Shown(), DesignedPanes);
        EXPECT_EQ(panes.Width(u"dwPropertiesEditor"), 385);
    }
    Put(whole);
    WindowWithPanes panes;
    EXPECT_TRUE(OpenLayout(panes.workspace, Path()));
}

TEST_F(LayoutFileTest, NoTruncationIsTakenForALayout) {
    SaveUnusual();
    const QByteArray whole = Bytes();
    WindowWithPanes panes;
    Expose(panes);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        Put(whole.left(length));
        ASSERT_FALSE(OpenLayout(panes.workspace, Path())) << length;
    }
    EXPECT_EQ(panes.Shown(), DesignedPanes);
}

TEST_F(LayoutFileTest, NoChangedOrRandomBytesAreTakenForALayout) {
    SaveUnusual();
    const QByteArray whole = Bytes();
    WindowWithPanes panes;
    Expose(panes);
    std::mt19937 random(1);
    for (int times = 0; times < 500; ++times) {
        QByteArray bytes = whole;
        if (times % 2 == 0) {
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] ^=
                static_cast<char>(1U << random() % 8);
        } else {
            bytes.resize(static_cast<qsizetype>(random() % 4000));
            for (char& byte : bytes)
                byte = static_cast<char>(random());
        }
        Put(bytes);
        ASSERT_FALSE(OpenLayout(panes.workspace, Path()));
    }
    EXPECT_EQ(panes.Shown(), DesignedPanes);
}

TEST_F(LayoutFileTest, AnArrangementThatTheToolkitCannotReadLeavesTheWindowUsable) {
    WindowWithPanes saved;
    const QByteArray arrangement = saved.workspace.SaveArrangement();
    for (qsizetype length = 1; length < arrangement.size(); length += 50) {
        SCOPED_TRACE(length);
        WindowWithPanes panes;
        Expose(panes);
        // Whole by its header, as a program with another idea of an arrangement would write it.
        Put(WithArrangement(arrangement.left(length)));
        EXPECT_FALSE(OpenLayout(panes.workspace, Path()));
        QCoreApplication::processEvents();
        EXPECT_EQ(panes.Shown(), DesignedPanes);
        EXPECT_EQ(panes.Width(u"dwPropertiesEditor"), 385);
        panes.workspace.BringPaneForward(u"dwInfo");
        panes.window.resize(1200, 900);
        QCoreApplication::processEvents();
        EXPECT_TRUE(panes.IsSeen(u"dwInfo"));
        EXPECT_EQ(panes.PaneOf(u"dwInfo").geometry().right(), 1199);
    }
}

TEST_F(LayoutFileTest, AMissingFileOrWhatIsNoFileLeavesTheArrangement) {
    WindowWithPanes panes;
    EXPECT_FALSE(OpenLayout(panes.workspace, Path()));
    EXPECT_FALSE(OpenLayout(panes.workspace, QString()));
    EXPECT_FALSE(OpenLayout(panes.workspace, folder.path()));
    Expose(panes);
    EXPECT_EQ(panes.Shown(), DesignedPanes);
}

TEST_F(LayoutFileTest, WhereNothingCanBeWrittenTheOldFileStays) {
    SaveUnusual();
    const QByteArray whole = Bytes();
    WindowWithPanes panes;
    EXPECT_FALSE(SaveLayout(panes.workspace, Path() + QStringLiteral("/below/a/file")));
    EXPECT_FALSE(SaveLayout(panes.workspace, folder.path()));
    EXPECT_EQ(Bytes(), whole);
}

TEST_F(LayoutFileTest, ALayoutOfAProgramWithFewerPanesLeavesTheOthersWhereTheyAre) {
    {
        WindowWithPanes panes;
        delete &panes.PaneOf(u"dwPreviewRule");
        panes.workspace.HidePane(u"dwInfo");
        ASSERT_TRUE(SaveLayout(panes.workspace, Path()));
    }
    WindowWithPanes panes;
    EXPECT_TRUE(OpenLayout(panes.workspace, Path()));
    Expose(panes);
    EXPECT_TRUE(panes.PaneOf(u"dwInfo").isHidden());
    EXPECT_EQ(panes.window.dockWidgetArea(&panes.PaneOf(u"dwPreviewRule")), Qt::BottomDockWidgetArea);
    EXPECT_FALSE(panes.PaneOf(u"dwPreviewRule").isHidden());
}

}  // namespace
}  // namespace tintora
