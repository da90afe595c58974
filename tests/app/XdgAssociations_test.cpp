#include "settings/qt/XdgAssociations.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

// With a tool of the test's own in the place of the desktop's: the only one that is on the path.

namespace tintora {
namespace {

struct QueryCase {
    const char* script;
    std::optional<Text> answer;
};

const std::vector<QueryCase> QueryCases = {
    {"echo tintora.desktop", u"tintora.desktop"},
    {"echo '  other.desktop  '", u"other.desktop"},
    {"printf ''", u""},
    {"echo", u""},
    {"echo 'no such type' >&2; exit 4", u""},
    {"kill -9 $$", std::nullopt},
    {"while :; do :; done", std::nullopt},
};

/// A variable of the environment, which comes back afterwards.
class Variable {
  public:
    Variable(const char* name, const QByteArray& value)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Variable() { wasSet_ ? qputenv(name_, before_) : qunsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    bool wasSet_;
    QByteArray before_;
};

class XdgAssociationsTest : public testing::Test {
  protected:
    void MakeTool(const QByteArray& script) const {
        QFile tool(folder.filePath(QStringLiteral("xdg-mime")));
        ASSERT_TRUE(tool.open(QFile::WriteOnly));
        tool.write("#!/bin/sh\n" + script + "\n");
        tool.close();
        ASSERT_TRUE(tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    /// A tool that writes down what it was asked, a line for each argument.
    void MakeRecordingTool() const {
        MakeTool("for argument; do echo \"$argument\" >>'" + folder.filePath(QStringLiteral("asked")).toUtf8() +
                 "'; done; echo other.desktop");
    }

    [[nodiscard]] QByteArray Asked() const {
        QFile file(folder.filePath(QStringLiteral("asked")));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    Variable path{"PATH", folder.path().toUtf8()};
    Variable automatic{"CI", ""};
};

TEST_F(XdgAssociationsTest, TheAnswerIsWhatTheToolPrints) {
    for (const QueryCase& row : QueryCases) {
        MakeTool(row.script);
        EXPECT_EQ(XdgAssociations(row.answer ? 30'000 : 200).QueryDefault(u"text/css"), row.answer) << row.script;
    }
}

TEST_F(XdgAssociationsTest, WithoutTheToolThereIsNoChoiceAndNothingToAsk) {
    XdgAssociations desktop;
    EXPECT_EQ(desktop.QueryDefault(u"text/css"), std::nullopt);
    EXPECT_TRUE(IsDefaultCSSEditor(desktop));
    EXPECT_NO_THROW(MakeDefaultCSSEditor(desktop));
}

TEST_F(XdgAssociationsTest, TheToolGetsItsArgumentsAsTheyAre) {
    MakeRecordingTool();
    XdgAssociations desktop(30'000);
    EXPECT_EQ(desktop.QueryDefault(u"text/css"), u"other.desktop");
    EXPECT_EQ(Asked(), "query\ndefault\ntext/css\n");
    MakeDefaultCSSEditor(desktop);
    EXPECT_EQ(Asked(), "query\ndefault\ntext/css\ndefault\ntintora.desktop\ntext/css\n");
    desktop.SetDefault(u"a b; echo $HOME `id` \"*", u"x");
    EXPECT_TRUE(Asked().endsWith("default\nx\na b; echo $HOME `id` \"*\n")) << "no shell reads them";
}

TEST_F(XdgAssociationsTest, AnAutomaticRunChangesNothing) {
    MakeRecordingTool();
    const Variable isAutomatic("CI", "true");
    XdgAssociations desktop(30'000);
    EXPECT_TRUE(IsDefaultCSSEditor(desktop));
    MakeDefaultCSSEditor(desktop);
    EXPECT_EQ(Asked(), "");
}

}  // namespace
}  // namespace tintora
