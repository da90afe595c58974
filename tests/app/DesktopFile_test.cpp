#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QMimeDatabase>
#include <QProcess>
#include <QTemporaryDir>

// The script that tells the desktop of a program in a source tree, as run.sh calls it.

namespace tintora {
namespace {

struct PathCase {
    /// The folder that the program lies in.
    const char* folder;
    /// What stands for it in the lines of the desktop file.
    const char* inTryExec;
    const char* inExec;
};

const std::vector<PathCase> Paths = {
    {"plain", "plain", "plain"},
    {"with two blanks", "with two blanks", "with two blanks"},
    {"dol$lar", "dol$lar", R"(dol\\$lar)"},
    {"back`tick", "back`tick", R"(back\\`tick)"},
    {"quo\"te", "quo\"te", R"(quo\\"te)"},
    {"back\\slash", R"(back\\slash)", R"(back\\\\slash)"},
    {"per%cent", "per%cent", "per%%cent"},
    {"é&;'*", "é&;'*", "é&;'*"},
};

class DesktopFileTest : public testing::Test {
  protected:
    [[nodiscard]] QString UserFile(const char* path) const { return home.filePath("data/" + QString::fromUtf8(path)); }

    static QByteArray Read(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void Put(const QString& path, const QByteArray& bytes) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }

    QString MakeProgram(const QString& below) const {
        const QString path = home.filePath(below + QStringLiteral("/tintora"));
        Put(path, "#!/bin/sh\n");
        return QFileInfo(path).canonicalFilePath();
    }

    void Install(const QString& program) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_DATA_DIRS"), home.filePath(QStringLiteral("system")));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TINTORA_SOURCE "/scripts/install-desktop-file.sh"), {program});
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        EXPECT_EQ(process.readAll(), QByteArray());
    }

    static constexpr auto DesktopFile = "applications/tintora.desktop";
    static constexpr auto Icon = "icons/hicolor/scalable/apps/tintora.svg";

    QTemporaryDir home;
};

TEST_F(DesktopFileTest, TheProgramIsNamedByItsPathAndTheRestIsAsInstalled) {
    const QByteArray installed = Read(QStringLiteral(TINTORA_SOURCE "/data/tintora.desktop"));
    ASSERT_TRUE(installed.contains("\nExec=tintora %f\n"));
    for (const PathCase& row : Paths) {
        SCOPED_TRACE(row.folder);
        QFile::remove(UserFile(DesktopFile));
        Install(MakeProgram(QString::fromUtf8(row.folder)));
        const QByteArray folder = QFile::encodeName(QFileInfo(home.path()).canonicalFilePath()) + '/';
        QByteArray expected = installed;
        expected.replace("Exec=tintora %f\n", "TryExec=" + folder + row.inTryExec + "/tintora\nExec=\"" + folder +
                                                  row.inExec + "/tintora\" %f\n");
        EXPECT_EQ(Read(UserFile(DesktopFile)), expected);
        EXPECT_EQ(Read(UserFile(Icon)), Read(QStringLiteral(TINTORA_SOURCE "/data/icons/tintora.svg")));
    }
}

TEST_F(DesktopFileTest, OneWhoseProgramIsThereStays) {
    for (const PathCase& row : Paths) {
        SCOPED_TRACE(row.folder);
        QFile::remove(UserFile(DesktopFile));
        const QString first = MakeProgram(QString::fromUtf8(row.folder));
        Install(first);
        const QByteArray before = Read(UserFile(DesktopFile));
        Install(MakeProgram(QStringLiteral("second")));
        EXPECT_EQ(Read(UserFile(DesktopFile)), before);
        QFile::remove(first);
        Install(MakeProgram(QStringLiteral("second")));
        EXPECT_TRUE(Read(UserFile(DesktopFile)).contains("/second/tintora\" %f\n"));
    }
}

TEST_F(DesktopFileTest, OneOfTheUsersOwnStays) {
    const QByteArray own = "[Desktop Entry]\nExec=/opt/tintora %f\n";
    Put(UserFile(DesktopFile), own);
    Install(MakeProgram(QStringLiteral("a")));
    EXPECT_EQ(Read(UserFile(DesktopFile)), own);
    EXPECT_FALSE(QFile::exists(UserFile(Icon)));
}

TEST_F(DesktopFileTest, OneThatIsInstalledForAllSuffices) {
    Put(home.filePath(QStringLiteral("system/applications/tintora.desktop")), "[Desktop Entry]\n");
    Install(MakeProgram(QStringLiteral("a")));
    EXPECT_FALSE(QFile::exists(UserFile("")));
}

TEST_F(DesktopFileTest, TheDesktopKnowsStyleSheetsByTheirNames) {
    const QByteArray installed = Read(QStringLiteral(TINTORA_SOURCE "/data/tintora.desktop"));
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("a.css"), QMimeDatabase::MatchExtension);
    EXPECT_TRUE(installed.contains("\nMimeType=" + type.name().toUtf8() + ";\n"));
}

}  // namespace
}  // namespace tintora
