#include "settings/qt/IniSettingsStore.h"

#include "settings/Settings.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tintora {
namespace {

class IniStoreTest : public testing::Test {
  protected:
    [[nodiscard]] QString File() const { return store.FilePath(ApplicationTitle); }

    void WriteFile(const QByteArray& bytes) const {
        QDir().mkpath(folder.path());
        QFile file(File());
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
    IniSettingsStore store{folder.path() + QStringLiteral("/Tintora")};
};

const Texts Values = {
    u"",
    u"plain",
    u" with blanks at its ends ",
    u"a, b; c = d # e",
    u"\"quoted\" 'so'",
    u"C:\\Program Files\\x",
    u"/a b/%20/\u00e9\u4e2d\U0001f600.css^^^/c.css",
    u"\r\r",
    u"\t\n\f",
    u"@Invalid()",
    u"[section]",
    Text(4000, u'x'),
};

TEST_F(IniStoreTest, EveryValueComesBackAsItWas) {
    for (const Text& value : Values) {
        store.SaveSetting(u"Tintora 3.5", u"TextEditing", u" 24", value);
        EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"TextEditing", u" 24", u"?"), value);
        EXPECT_EQ(IniSettingsStore(folder.path() + QStringLiteral("/Tintora"))
                      .GetSetting(u"Tintora 3.5", u"TextEditing", u" 24", u"?"),
                  value)
            << "for another process too";
    }
}

TEST_F(IniStoreTest, AReadNeverWrites) {
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"Options", u"None", u"default"), u"default");
    EXPECT_FALSE(QFile::exists(File()));
    EXPECT_FALSE(QDir(folder.path() + QStringLiteral("/Tintora")).exists());
}

TEST_F(IniStoreTest, ApplicationsSectionsAndKeysAreKeptApart) {
    store.SaveSetting(u"Tintora 3.5", u"A", u"Key", u"1");
    store.SaveSetting(u"Tintora 3.5", u"B", u"Key", u"2");
    store.SaveSetting(u"Tintora 4", u"A", u"Key", u"3");
    store.SaveSetting(u"Tintora 3.5", u"A", u"24", u"4");
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"A", u"Key", u""), u"1");
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"B", u"Key", u""), u"2");
    EXPECT_EQ(store.GetSetting(u"Tintora 4", u"A", u"Key", u""), u"3");
    EXPECT_EQ(store.GetSetting(u"Tintora 3.5", u"A", u" 24", u"none"), u"none");
}

TEST_F(IniStoreTest, ADamagedFileGivesDefaultsAndIsKeptAside) {
    store.SaveSetting(u"Tintora 3.5", u"Editing", u"PreferredUnits", u"px");
    const QByteArray damaged("\x00\x01garbage\nno equals sign\n[open\n", 31);
    WriteFile(damaged);
    EXPECT_EQ(Settings(store).GetPreferredUnits(), u"em");
    QFile aside(File() + QStringLiteral(".damaged"));
    ASSERT_TRUE(aside.open(QFile::ReadOnly));
    EXPECT_EQ(aside.readAll(), damaged);
    Settings(store).SetPreferredUnits(u"pt");
    EXPECT_EQ(Settings(store).GetPreferredUnits(), u"pt");

    WriteFile(damaged);
    Settings(store).SetPreferredUnits(u"cm");
    EXPECT_EQ(Settings(store).GetPreferredUnits(), u"cm");
    EXPECT_TRUE(QFile::exists(File() + QStringLiteral(".damaged.2")));
}

TEST_F(IniStoreTest, AFolderThatCannotBeMadeLosesChangesQuietly) {
    IniSettingsStore nowhere(QStringLiteral("/dev/null/settings"));
    nowhere.SaveSetting(u"Tintora 3.5", u"A", u"Key", u"1");
    EXPECT_EQ(nowhere.GetSetting(u"Tintora 3.5", u"A", u"Key", u"default"), u"default");
}

}  // namespace
}  // namespace tintora
