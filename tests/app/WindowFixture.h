#pragma once

#include "settings/MemorySettingsStore.h"
#include "shell/qt/StyleSheetPane.h"
#include "shell/qt/frmMain.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>
#include <deque>
#include <memory>

namespace tintora::test {

/// What the user was told and asked, and the answer that the next question gets.
struct Told {
    QStringList messages;
    QStringList questions;
    QStringList addresses;
    /// The command lines of the programs that were started.
    std::vector<Texts> commands;
    /// The pages that were opened in the user's browser, and whether there is a way to the web.
    Texts pages;
    bool isConnected = true;
    /// The answer to questions for files; none is a cancelled question.
    QStringList files;
    /// The answer to questions for colours.
    std::optional<QColor> color;
    FileDialogs::SaveAnswer saveAnswer = FileDialogs::SaveAnswer::No;
    /// Answers of the questions to come, before `saveAnswer` holds.
    std::deque<FileDialogs::SaveAnswer> saveAnswers;
    FileDialogs::ChangedFileAnswer changedFileAnswer = FileDialogs::ChangedFileAnswer::Cancel;
    std::optional<Text> savePath;
    std::optional<Text> page;
    UserMessages::RecoveryAnswer recoveryAnswer = UserMessages::RecoveryAnswer::Later;
};

class RecordedMessages final : public UserMessages {
  public:
    explicit RecordedMessages(Told& told) : told_(told) {}

    void Tell(const QString& text, const QString&) override { told_.messages.append(text); }
    void OpenAddress(const QString& address) override { told_.addresses.append(address); }
    void ShowWriteFailure(TextView message) override { told_.messages.append(ToQString(message)); }
    void ShowExclamation(TextView message) override { told_.messages.append(ToQString(message)); }
    std::optional<Text> AskSavePath(TextView title, TextView proposedName, TextView) override {
        told_.questions.append(ToQString(title) + ": " + ToQString(proposedName));
        return told_.savePath;
    }
    SaveAnswer AskSaveChanges(TextView, TextView question) override {
        told_.questions.append(ToQString(question));
        if (told_.saveAnswers.empty())
            return told_.saveAnswer;
        const SaveAnswer answer = told_.saveAnswers.front();
        told_.saveAnswers.pop_front();
        return answer;
    }
    ChangedFileAnswer AskAboutChangedFile(TextView path) override {
        told_.questions.append("changed: " + ToQString(path));
        return told_.changedFileAnswer;
    }

    void AskAboutCopies(const std::vector<LeftCopy>& copies,
                        const std::function<void(std::size_t, RecoveryAnswer)>& handle) override {
        for (std::size_t index = 0; index < copies.size(); ++index) {
            told_.questions.append("recover: " + ToQString(copies[index].record.caption));
            handle(index, told_.recoveryAnswer);
        }
    }
    std::optional<Text> AskPage(TextView title) override {
        told_.questions.append(ToQString(title));
        return told_.page;
    }
    std::optional<Text> AskFolder(TextView prompt) override {
        told_.questions.append(ToQString(prompt));
        return std::nullopt;
    }
    bool Confirm(TextView) override { return false; }
    std::optional<PageOptions> AskLinkOptions() override { return std::nullopt; }
    std::optional<PageOptions> AskEmbedOptions() override { return std::nullopt; }
    void ShowBusy(bool) override {}
    std::unique_ptr<PageProgress> ShowProgress(int) override { return nullptr; }

  private:
    Told& told_;
};

class RecordedProcesses final : public ProcessStarter {
  public:
    explicit RecordedProcesses(Told& told) : told_(told) {}
    bool Start(const Texts& command) override {
        told_.commands.push_back(command);
        return true;
    }

  private:
    Told& told_;
};

class RecordedWeb final : public WebAccess {
  public:
    explicit RecordedWeb(Told& told) : told_(told) {}
    bool IsConnected() const override { return told_.isConnected; }
    void OpenURLInBrowser(TextView url) override { told_.pages.emplace_back(url); }

  private:
    Told& told_;
};

/// A fresh main window over a fresh store, and a folder of its own for files.
class WindowTest : public testing::Test {
  protected:
    WindowTest() { MakeWindow(); }

    /// What the window works with. Its programs lie in a folder without a preview document, where a test doesn't make
    /// one.
    FrameSurroundings Surroundings(const QString& layoutPath = {}) {
        return {.store = store,
                .recovery = recovery,
                .messages = std::make_unique<RecordedMessages>(told),
                .layoutPath = layoutPath,
                .previewFolders = {ToText(folder.filePath("program")), ToText(folder.filePath("tmp"))},
                .askFiles =
                    [this](const FilesWanted& wanted, QWidget*) {
                        told.questions.append(wanted.title);
                        return told.files;
                    },
                .askColor =
                    [this](const ColorQuestion& question, QWidget*) {
                        told.questions.append(question.title);
                        return told.color;
                    },
                .processes = std::make_unique<RecordedProcesses>(told),
                .web = std::make_unique<RecordedWeb>(told)};
    }

    void MakeWindow() { window = std::make_unique<frmMain>(Surroundings()); }

    /// Writes a file into the test's folder, and gives its path.
    Text MakeFile(const char* name, const QByteArray& bytes) {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return ToText(file.fileName());
    }

    static QStringList Captions(const frmMain& frame) {
        QStringList captions;
        for (const StyleSheetPane* const pane : frame.OpenDocuments())
            captions.append(pane->Caption());
        return captions;
    }

    QTemporaryDir folder;
    MemorySettingsStore store;
    RecoveryFolder recovery{folder.filePath(QStringLiteral("recovery")).toStdString()};
    Told told;
    std::unique_ptr<frmMain> window;
};

}  // namespace tintora::test
