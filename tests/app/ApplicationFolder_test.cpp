#include "shell/qt/ApplicationFolder.h"

#include "shell/qt/FileManifest.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

namespace tintora {
namespace {

/// By path; an empty text stands for a file that isn't there.
using Files = QMap<QString, QByteArray>;

struct FillCase {
    const char* what;
    /// What shipped with the version before, and what the user then did: the folder as it is at the second start.
    Files before;
    Files userHas;
    /// What ships with the version that starts now, and the folder after that.
    Files now;
    Files after;
};

const std::vector<FillCase> Fills = {
    {"a first start of all",
     {},
     {},
     {{"manual/a.html", "1"}, {"b.css", "1"}},
     {{"manual/a.html", "1"}, {"b.css", "1"}}},
    {"an unchanged file follows the version", {{"a", "1"}}, {{"a", "1"}}, {{"a", "2"}}, {{"a", "2"}}},
    {"a changed file stays", {{"a", "1"}}, {{"a", "my own"}}, {{"a", "2"}}, {{"a", "my own"}}},
    {"a changed file of the same size stays", {{"a", "1"}}, {{"a", "x"}}, {{"a", "2"}}, {{"a", "x"}}},
    {"a file that is gone comes back",
     {{"a", "1"}, {"b", "1"}},
     {{"b", "1"}},
     {{"a", "2"}, {"b", "1"}},
     {{"a", "2"}, {"b", "1"}}},
    {"an empty file is what a power cut leaves", {{"a", "1"}}, {{"a", ""}}, {{"a", "2"}}, {{"a", "2"}}},
    {"a new file is added", {{"a", "1"}}, {{"a", "1"}}, {{"a", "1"}, {"b", "2"}}, {{"a", "1"}, {"b", "2"}}},
    {"a file of the user's in the place of a new one stays",
     {{"a", "1"}},
     {{"a", "1"}, {"b", "my own"}},
     {{"a", "1"}, {"b", "2"}},
     {{"a", "1"}, {"b", "my own"}}},
    {"a file that ships no more goes", {{"a", "1"}, {"b", "1"}}, {{"a", "1"}, {"b", "1"}}, {{"a", "1"}}, {{"a", "1"}}},
    {"a changed file that ships no more stays",
     {{"a", "1"}, {"b", "1"}},
     {{"a", "1"}, {"b", "my own"}},
     {{"a", "1"}},
     {{"a", "1"}, {"b", "my own"}}},
    {"what the user has added stays",
     {{"a", "1"}},
     {{"a", "1"}, {"mine/x", "my own"}},
     {{"a", "2"}},
     {{"a", "2"}, {"mine/x", "my own"}}},
    {"a version without files takes nothing away", {{"a", "1"}}, {{"a", "1"}}, {}, {{"a", "1"}}},
    {"names with blanks and beyond ASCII",
     {{"Explorer 6.ktw", "1"}, {"é/ü.html", "1"}},
     {{"Explorer 6.ktw", "1"}, {"é/ü.html", "1"}},
     {{"Explorer 6.ktw", "2"}, {"é/ü.html", "2"}},
     {{"Explorer 6.ktw", "2"}, {"é/ü.html", "2"}}},
};

class ApplicationFolderTest : public testing::Test {
  protected:
    [[nodiscard]] ShippedData Shipped(const char* stamp) const {
        return {temporary.filePath(QStringLiteral("shipped")), QString::fromUtf8(stamp)};
    }
    [[nodiscard]] QString ShippedHelp() const { return temporary.filePath(QStringLiteral("shipped/Help_Files")); }
    [[nodiscard]] QString Help() const { return folder.Path() + QStringLiteral("/Help_Files"); }
    [[nodiscard]] QString ManifestPath() const { return folder.Path() + QStringLiteral("/shipped-files"); }

    static void Put(const QString& below, const Files& files) {
        QDir(below).removeRecursively();
        for (auto file = files.begin(); file != files.end(); ++file) {
            const QString path = below + QLatin1Char('/') + file.key();
            QDir().mkpath(QFileInfo(path).path());
            QFile put(path);
            ASSERT_TRUE(put.open(QFile::WriteOnly)) << path.toStdString();
            put.write(*file);
        }
    }

    static Files FilesBelow(const QString& below) {
        Files files;
        QDirIterator path(below, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (path.hasNext()) {
            QFile file(path.next());
            EXPECT_TRUE(file.open(QFile::ReadOnly));
            files.insert(QDir(below).relativeFilePath(file.fileName()), file.readAll());
        }
        return files;
    }

    QTemporaryDir temporary;
    ApplicationFolder folder{temporary.filePath(QStringLiteral("home/tintora"))};
};

TEST_F(ApplicationFolderTest, WhatIsAsItWasPutFollowsTheVersionAndTheUsersStays) {
    for (const FillCase& row : Fills) {
        SCOPED_TRACE(row.what);
        QDir(folder.Path()).removeRecursively();
        Put(ShippedHelp(), row.before);
        folder.Fill(Shipped("1"));
        EXPECT_EQ(FilesBelow(Help()), row.before);
        Put(Help(), row.userHas);
        Put(ShippedHelp(), row.now);
        folder.Fill(Shipped("2"));
        EXPECT_EQ(FilesBelow(Help()), row.after);
        // Nothing is left over, and a start more changes nothing.
        folder.Fill(Shipped("3"));
        EXPECT_EQ(FilesBelow(Help()), row.after);
    }
}

TEST_F(ApplicationFolderTest, AFileThatTheUserHasChangedBackFollowsTheVersionAgain) {
    Put(ShippedHelp(), {{"a", "1"}});
    folder.Fill(Shipped("1"));
    Put(Help(), {{"a", "my own"}});
    Put(ShippedHelp(), {{"a", "2"}});
    folder.Fill(Shipped("2"));
    Put(Help(), {{"a", "1"}});
    folder.Fill(Shipped("3"));
    EXPECT_EQ(FilesBelow(Help()), (Files{{"a", "2"}}));
}

TEST_F(ApplicationFolderTest, AVersionFillsTheFolderOnce) {
    Put(ShippedHelp(), {{"a", "1"}, {"b", "1"}});
    folder.Fill(Shipped("1"));
    Put(ShippedHelp(), {{"a", "2"}, {"b", "2"}});
    folder.Fill(Shipped("1"));
    EXPECT_EQ(FilesBelow(Help()), (Files{{"a", "1"}, {"b", "1"}}));
    // Unless it has gone as a whole.
    QDir(Help()).removeRecursively();
    folder.Fill(Shipped("1"));
    EXPECT_EQ(FilesBelow(Help()), (Files{{"a", "2"}, {"b", "2"}}));
}

TEST_F(ApplicationFolderTest, OnlyWhatShipsIsPutIntoTheFolder) {
    Put(temporary.filePath(QStringLiteral("shipped")), {{"icons/tintora.svg", "<svg/>"}, {"tintora.desktop", "[]"}});
    folder.Fill(Shipped("1"));
    EXPECT_FALSE(QFile::exists(folder.Path())) << "there is nothing to put there";
    Put(ShippedHelp(), {{"a", "1"}});
    folder.Fill(Shipped("1"));
    EXPECT_EQ(FilesBelow(folder.Path()).keys(), QStringList({"Help_Files/a", "shipped-files"}));
}

TEST_F(ApplicationFolderTest, AMissingSourceDoesNothing) {
    folder.Fill({temporary.filePath(QStringLiteral("nowhere")), QStringLiteral("1")});
    folder.Fill({QString(), QStringLiteral("1")});
    EXPECT_FALSE(QFile::exists(folder.Path()));
}

TEST_F(ApplicationFolderTest, AFolderThatCannotBeWrittenIsTriedAgain) {
    Put(ShippedHelp(), {{"a", "1"}});
    Put(temporary.filePath(QStringLiteral("home")), {{"tintora", "a file where the folder should be"}});
    folder.Fill(Shipped("1"));
    EXPECT_EQ(FilesBelow(temporary.filePath(QStringLiteral("home"))).size(), 1);
    Put(temporary.filePath(QStringLiteral("home")), {});
    folder.Fill(Shipped("1"));
    EXPECT_EQ(FilesBelow(Help()), (Files{{"a", "1"}}));
}

TEST_F(ApplicationFolderTest, AFileThatCannotBePutThereIsTriedAgainAtTheNextStart) {
    Put(ShippedHelp(), {{"a/b", "1"}, {"c", "1"}});
    Put(Help(), {{"a", "a file where a folder should be"}});
    folder.Fill(Shipped("1"));
    EXPECT_EQ(FilesBelow(Help()).value("c"), "1");
    QFile::remove(Help() + QStringLiteral("/a"));
    folder.Fill(Shipped("1"));
    EXPECT_EQ(FilesBelow(Help()), (Files{{"a/b", "1"}, {"c", "1"}}));
}

TEST_F(ApplicationFolderTest, ALinkIsTheUsers) {
    Put(ShippedHelp(), {{"a", "1"}});
    folder.Fill(Shipped("1"));
    const QString elsewhere = temporary.filePath(QStringLiteral("elsewhere"));
    ASSERT_TRUE(QFile::rename(Help() + QStringLiteral("/a"), elsewhere));
    ASSERT_TRUE(QFile::link(elsewhere, Help() + QStringLiteral("/a")));
    Put(ShippedHelp(), {{"a", "2"}});
    folder.Fill(Shipped("2"));
    EXPECT_TRUE(QFileInfo(Help() + QStringLiteral("/a")).isSymbolicLink());
    EXPECT_EQ(FilesBelow(Help()), (Files{{"a", "1"}}));
}

const QByteArray Digest(64, '0');

/// What lies there in the place of a manifest.
const std::vector<QByteArray> DamagedManifests = {
    "",
    "x",
    "Tintora files 2\n1\n",
    "Tintora files 1\n1",
    "Tintora files 1\n1\n1 " + Digest,
    "Tintora files 1\n1\n1\n",
    "Tintora files 1\n1\none " + Digest + " Help_Files/a\n",
    "Tintora files 1\n1\n1 " + Digest + " \n",
    "Tintora files 1\n1\n1 " + Digest + " ../../elsewhere\n",
    "Tintora files 1\n1\n1 " + Digest + " Help_Files/../../../elsewhere\n",
    "Tintora files 1\n1\n1 " + Digest + " /elsewhere\n",
    QByteArray("\0\xff\n\n\n", 5),
};

TEST_F(ApplicationFolderTest, WithADamagedManifestWhatDiffersCountsAsTheUsers) {
    for (const QByteArray& damaged : DamagedManifests) {
        SCOPED_TRACE(damaged.toStdString());
        Put(ShippedHelp(), {{"a", "1"}, {"b", "1"}});
        Put(folder.Path(), {{"Help_Files/a", "1"}, {"Help_Files/b", "2"}, {"shipped-files", damaged}});
        EXPECT_TRUE(FileManifest::Read(ManifestPath()).files.isEmpty());
        folder.Fill(Shipped("1"));
        EXPECT_EQ(FilesBelow(Help()), (Files{{"a", "1"}, {"b", "2"}}));
        EXPECT_EQ(FileManifest::Read(ManifestPath()).files.keys(), QStringList{"Help_Files/a"});
    }
}

TEST_F(ApplicationFolderTest, TheUsersFolderFollowsTheEnvironment) {
    const QByteArray home = qgetenv("TINTORA_HOME");
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/data of ann");
    qunsetenv("TINTORA_HOME");
    EXPECT_EQ(ApplicationFolder::UserPath(), "/data of ann/tintora");
    qputenv("TINTORA_HOME", "/my/place/");
    EXPECT_EQ(ApplicationFolder::UserPath(), "/my/place");
    EXPECT_EQ(ApplicationFolder(ApplicationFolder::UserPath()).LayoutPath(), "/my/place/Layouts/current");
    qputenv("TINTORA_HOME", "here");
    EXPECT_EQ(ApplicationFolder::UserPath(), QDir::currentPath() + "/here");
    qunsetenv("XDG_DATA_HOME");
    qputenv("TINTORA_HOME", "");
    EXPECT_EQ(ApplicationFolder::UserPath(), QDir::homePath() + "/.local/share/tintora");
    home.isNull() ? qunsetenv("TINTORA_HOME") : qputenv("TINTORA_HOME", home);
    data.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", data);
}

TEST_F(ApplicationFolderTest, ABuildTreeHasTheFilesOfItsSourceTree) {
    const ShippedData shipped = FindShippedData();
    EXPECT_TRUE(QFile::exists(shipped.folder + QStringLiteral("/icons/tintora.svg")));
    EXPECT_TRUE(shipped.stamp.startsWith(QCoreApplication::applicationVersion() + "-"));
}

TEST_F(ApplicationFolderTest, TheStampOfFilesChangesWithThem) {
    const QString shipped = temporary.filePath(QStringLiteral("shipped"));
    QStringList stamps{StampOfFiles(shipped)};
    for (const Files& files :
         {Files{{"a", "1"}}, Files{{"a", "12"}}, Files{{"b", "12"}}, Files{{"b", "12"}, {"c", ""}}}) {
        Put(ShippedHelp(), files);
        stamps.append(StampOfFiles(shipped));
        EXPECT_EQ(StampOfFiles(shipped), stamps.last());
    }
    QFile touched(ShippedHelp() + QStringLiteral("/b"));
    ASSERT_TRUE(touched.open(QFile::ReadWrite));
    touched.setFileTime(QDateTime::fromMSecsSinceEpoch(1000), QFile::FileModificationTime);
    touched.close();
    stamps.append(StampOfFiles(shipped));
    EXPECT_EQ(QSet<QString>(stamps.begin(), stamps.end()).size(), stamps.size());
}

}  // namespace
}  // namespace tintora
