#include "shell/qt/FirstPaint.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <chrono>

namespace tintora {
namespace {

constexpr int MillisecondsToEnd = 60'000;

/// Starts the real program with the session's folders in `home`, and gives what it prints until it ends.
QByteArray OutputOfMeasuredStart(const QTemporaryDir& home) {
    QDir(home.path()).mkpath(QStringLiteral("run"));
    QFile::setPermissions(home.filePath(QStringLiteral("run")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.filePath(QStringLiteral("run")));
    for (const char* const name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "TMPDIR"})
        environment.insert(QString::fromUtf8(name), home.path());
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    environment.insert(QStringLiteral("TINTORA_REPORT_FIRST_PAINT"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TINTORA_PROGRAM), {QStringLiteral(TINTORA_SAMPLES "/large.css")});
    EXPECT_TRUE(process.waitForFinished(MillisecondsToEnd));
    EXPECT_EQ(process.exitCode(), 0);
    return process.readAllStandardOutput();
}

TEST(FirstPaint, AStartThatIsMeasuredPrintsItsTimeAndMemoryAndEnds) {
    const QTemporaryDir home;
    const QString printed = QString::fromUtf8(OutputOfMeasuredStart(home));
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("^first paint (\\d+) ms, resident (\\d+) kB\n$")).match(printed);
    ASSERT_TRUE(match.hasMatch()) << printed.toStdString();
    EXPECT_GT(match.captured(1).toInt(), 0);
    EXPECT_LT(match.captured(1).toInt(), MillisecondsToEnd);
    EXPECT_GT(match.captured(2).toInt(), 10'000);
}

TEST(FirstPaint, AStartThatIsNotMeasuredPrintsNothing) {
    ASSERT_FALSE(qEnvironmentVariableIsSet("TINTORA_REPORT_FIRST_PAINT"));
    testing::internal::CaptureStdout();
    QWidget window;
    const FirstPaint firstPaint(window);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(FirstPaint, TimeAndMemoryComeFromTheSystem) {
    const std::optional<long> before = MillisecondsSinceStart();
    ASSERT_TRUE(before);
    EXPECT_GE(*before, 0);
    const auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(20)) {
    }
    EXPECT_GE(*MillisecondsSinceStart() - *before, 19);
    const std::optional<long> resident = ResidentKilobytes();
    ASSERT_TRUE(resident);
    const std::vector<char> block(50'000'000, 'x');
    EXPECT_GE(*ResidentKilobytes() - *resident, 40'000);
    EXPECT_EQ(block.back(), 'x');
}

}  // namespace
}  // namespace tintora
