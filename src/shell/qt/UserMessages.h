#pragma once

#include "document/DocumentSurroundings.h"
#include "document/RecoveryFolder.h"
#include "validation/ValidationSurroundings.h"

#include <QString>
#include <functional>
#include <vector>

class QWidget;

namespace tintora {

/// What the program says to the user in a box of its own, and what it asks.
class UserMessages : public FileDialogs, public PageDialogs, public ValidationMessages {
  public:
    /// Opens a page of the web in the user's browser.
    virtual void OpenAddress(const QString& address) = 0;

    /// What is to be done about a recovery copy.
    enum class RecoveryAnswer { Recover, Discard, Later };

    /// Asks about each of the copies that a crash has left, by their indexes, and runs `handle` with each answer.
    virtual void AskAboutCopies(const std::vector<LeftCopy>& copies,
                                const std::function<void(std::size_t, RecoveryAnswer)>& handle) = 0;

    /// Tells something, in one sentence, with the reason or the consequence in another.
    virtual void Tell(const QString& text, const QString& details) = 0;
};

/// The messages as modal boxes and dialogs over a window.
class MessageBoxes final : public UserMessages {
  public:
    /// `window` must outlive the object.
    explicit MessageBoxes(QWidget& window) : window_(window) {}

    void Tell(const QString& text, const QString& details) override;
    void OpenAddress(const QString& address) override;
    void ShowWriteFailure(TextView message) override;
    void ShowExclamation(TextView message) override;
    [[nodiscard]] std::optional<Text> AskSavePath(TextView title, TextView proposedName, TextView folder) override;
    [[nodiscard]] SaveAnswer AskSaveChanges(TextView title, TextView question) override;
    [[nodiscard]] ChangedFileAnswer AskAboutChangedFile(TextView path) override;
    void AskAboutCopies(const std::vector<LeftCopy>& copies,
                        const std::function<void(std::size_t, RecoveryAnswer)>& handle) override;
    [[nodiscard]] std::optional<Text> AskPage(TextView title) override;
    [[nodiscard]] std::optional<Text> AskFolder(TextView prompt) override;
    [[nodiscard]] bool Confirm(TextView question) override;
    void ShowBusy(bool isBusy) override;
    [[nodiscard]] std::unique_ptr<PageProgress> ShowProgress(int pageCount) override;

    // Their forms aren't built yet, and no command leads to them.
    [[nodiscard]] std::optional<PageOptions> AskLinkOptions() override { return std::nullopt; }
    [[nodiscard]] std::optional<PageOptions> AskEmbedOptions() override { return std::nullopt; }

  private:
    QWidget& window_;
    /// Where the user saved last, and chose a page or a folder of pages; "" before that.
    QString folder_;
    QString pageFolder_;
};

}  // namespace tintora
