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

/// A fresh main window over a fresh store, and a folder of its own for files.
class WindowTest : public testing::Test {
  protected:
    WindowTest() { MakeWindow(); }

    void MakeWindow() { window = std::make_unique<frmMain>(store, recovery, std::make_unique<RecordedMessages>(told)); }

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
