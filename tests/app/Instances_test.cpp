#include "document/RecoveryCopies.h"
#include "settings/Settings.h"
#include "settings/qt/IniSettingsStore.h"
#include "shell/qt/InstanceLock.h"
#include "shell/qt/MessageHook.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <memory>
#include <set>

// Starts of the real program, with the session's folders in a folder of the test.

namespace tintora {
namespace {

constexpr int MillisecondsToEnd = 30'000;

class InstancesTest : public testing::Test {
  protected:
    InstancesTest() {
        QDir(home.path()).mkpath(QStringLiteral("run"));
        QFile::setPermissions(home.filePath(QStringLiteral("run")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    [[nodiscard]] QString InstanceFolder() const { return home.filePath(QStringLiteral("run/tintora")); }

    std::unique_ptr<QProcess> Start(const QStringList& arguments) const {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.filePath(QStringLiteral("run")));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), home.filePath(QStringLiteral("state")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("TMPDIR"), home.path());
        // The question about the default editor would wait for an answer.
        environment.insert(QStringLiteral("CI"), QStringLiteral("true"));
        environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory(home.path());
        process->start(QStringLiteral(TINTORA_PROGRAM), arguments);
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }

    /// Waits for the process to end while this one's events go on.
    static bool WaitForEnd(const QProcess& process) {
        return QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, MillisecondsToEnd);
    }

    QTemporaryDir home;
    IniSettingsStore store{home.filePath(QStringLiteral("config/Tintora"))};
};

TEST_F(InstancesTest, HelpAndVersionArePrinted) {
    const auto help = Start({QStringLiteral("--help")});
    ASSERT_TRUE(WaitForEnd(*help));
    EXPECT_EQ(help->exitCode(), 0);
    EXPECT_TRUE(help->readAllStandardOutput().startsWith("Usage: tintora [FILE]"));
    const auto version = Start({QStringLiteral("--version")});
    ASSERT_TRUE(WaitForEnd(*version));
    EXPECT_TRUE(version->readAllStandardOutput().startsWith("tintora "));
}

TEST_F(InstancesTest, TheFirstStaysAndASecondHandsItsFileOverAndEnds) {
    QFile file(home.filePath(QStringLiteral("a.css")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    const auto first = Start({QStringLiteral("a.css")});
    const QString socket = InstanceSocketPath(InstanceFolder());
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(socket); }, MillisecondsToEnd));
    const auto second = Start({QStringLiteral("b.css")});
    ASSERT_TRUE(WaitForEnd(*second));
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_EQ(Settings(store).Get(setting::OpenMe), u"");
    EXPECT_EQ(first->state(), QProcess::Running);
    first->terminate();
    ASSERT_TRUE(WaitForEnd(*first));
}

TEST_F(InstancesTest, OneThatIsAskedToEndLeavesNoFilesOfPreviews) {
    QDir(home.path()).mkdir(QStringLiteral("site"));
    QFile file(home.filePath(QStringLiteral("site/a.css")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    const auto left = [&] {
        QStringList names;
        for (QDirIterator files(home.path(), {QStringLiteral("ktTemp*")}, QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();)
            names.append(files.next());
        return names;
    };
    const auto first = Start({QStringLiteral("site/a.css")});
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QFile::exists(InstanceSocketPath(InstanceFolder())); }, MillisecondsToEnd));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !left().isEmpty(); }, MillisecondsToEnd));
    first->terminate();
    ASSERT_TRUE(WaitForEnd(*first));
    EXPECT_EQ(first->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first->exitCode(), 128 + SIGTERM);
    EXPECT_EQ(left(), QStringList());
}

TEST_F(InstancesTest, ThePathIsMadeAbsoluteWhereTheSecondWasStarted) {
    InstanceLock lock(InstanceFolder());
    ASSERT_TRUE(lock.TryToTake());
    Texts opened;
    const MessageHook hook(InstanceFolder(), store, [&](const Text& path) { opened.push_back(path); });
    for (const QStringList& arguments : {QStringList{"a.css"}, QStringList{"my", "styles.css"}, QStringList{}}) {
        const auto second = Start(arguments);
        ASSERT_TRUE(WaitForEnd(*second));
        EXPECT_EQ(second->exitCode(), 0);
    }
    const Text here = ToText(QFileInfo(home.path()).canonicalFilePath());
    EXPECT_EQ(opened, (Texts{here + u"/a.css", here + u"/my styles.css", u""}));
}

TEST_F(InstancesTest, TenStartsAtOnceLoseNothing) {
    InstanceLock lock(InstanceFolder());
    ASSERT_TRUE(lock.TryToTake());
    Texts opened;
    const MessageHook hook(InstanceFolder(), store, [&](const Text& path) {
        opened.push_back(path);
        // As long as a file takes to open, and with events going on, as a question would have them.
        QTest::qWait(5);
    });
    std::vector<std::unique_ptr<QProcess>> starts;
    Texts expected;
    for (int number = 0; number < 10; ++number) {
        starts.push_back(Start({QStringLiteral("/%1.css").arg(number)}));
        expected.push_back(ToText(QStringLiteral("/%1.css").arg(number)));
    }
    for (const auto& start : starts) {
        ASSERT_TRUE(WaitForEnd(*start));
        EXPECT_EQ(start->exitCode(), 0);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return opened.size() == 10; }, 5000));
    std::sort(opened.begin(), opened.end());
    EXPECT_EQ(opened, expected);
    EXPECT_EQ(Settings(store).Get(setting::OpenMe), u"");
}

TEST_F(InstancesTest, FiftyStartsAtOnceOpenFiftyDocuments) {
    InstanceLock lock(InstanceFolder());
    ASSERT_TRUE(lock.TryToTake());
    NoRecoveryCopies recovery;
    frmMain window({.store = store, .recovery = recovery});
    const MessageHook hook(InstanceFolder(), store, [&](const Text& path) { window.OpenOneStyleSheet(path); });
    std::vector<std::unique_ptr<QProcess>> starts;
    for (int number = 0; number < 50; ++number) {
        const QString name = QStringLiteral("%1.css").arg(number);
        QFile file(home.filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        starts.push_back(Start({name}));
    }
    for (const auto& start : starts) {
        ASSERT_TRUE(WaitForEnd(*start));
        EXPECT_EQ(start->exitCode(), 0);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.OpenDocuments().size() == 50; }, 5000));
    std::set<Text> files;
    for (const StyleSheetPane* const pane : window.OpenDocuments())
        files.insert(pane->File());
    EXPECT_EQ(files.size(), 50U);
}

TEST_F(InstancesTest, AStaleSocketOfACrashedInstanceIsReplaced) {
    const auto crashed = Start({});
    const QString socket = InstanceSocketPath(InstanceFolder());
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(socket); }, MillisecondsToEnd));
    crashed->kill();
    ASSERT_TRUE(WaitForEnd(*crashed));
    EXPECT_TRUE(QFile::exists(socket)) << "nobody has tidied up";

    InstanceLock lock(InstanceFolder());
    ASSERT_TRUE(lock.TryToTake()) << "the lock of a process that is gone is free";
    Texts opened;
    const MessageHook hook(InstanceFolder(), store, [&](const Text& path) { opened.push_back(path); });
    const auto second = Start({QStringLiteral("/a.css")});
    ASSERT_TRUE(WaitForEnd(*second));
    EXPECT_EQ(opened, Texts{u"/a.css"});
}

TEST_F(InstancesTest, ASenderThatDiesBehindItsTurnHoldsUpNobody) {
    InstanceLock lock(InstanceFolder());
    ASSERT_TRUE(lock.TryToTake());
    Texts opened;
    const MessageHook hook(InstanceFolder(), store, [&](const Text& path) { opened.push_back(path); });
    {
        QLocalSocket dying;
        dying.connectToServer(InstanceSocketPath(InstanceFolder()));
        ASSERT_TRUE(QTest::qWaitFor([&] { return dying.canReadLine(); }, 5000));
        Settings(store).Save(setting::OpenMe, u"/left.css");
    }
    const auto second = Start({QStringLiteral("/a.css")});
    ASSERT_TRUE(WaitForEnd(*second));
    EXPECT_EQ(opened, (Texts{u"/left.css", u"/a.css"}));
}

}  // namespace
}  // namespace tintora
