#pragma once

#include "document/DocumentSurroundings.h"

#include <QString>

class QWidget;

namespace tintora {

/// What the program says to the user in a box of its own, and what it asks.
class UserMessages : public FileDialogs {
  public:
    /// Tells something, in one sentence, with the reason or the consequence in another.
    virtual void Tell(const QString& text, const QString& details) = 0;
};

/// The messages as modal boxes and dialogs over a window.
class MessageBoxes final : public UserMessages {
  public:
    /// `window` must outlive the object.
    explicit MessageBoxes(QWidget& window) : window_(window) {}

    void Tell(const QString& text, const QString& details) override;
    void ShowWriteFailure(TextView message) override;
    [[nodiscard]] std::optional<Text> AskSavePath(TextView title, TextView proposedName) override;
    [[nodiscard]] SaveAnswer AskSaveChanges(TextView title, TextView question) override;
    [[nodiscard]] ChangedFileAnswer AskAboutChangedFile(TextView path) override;

  private:
    QWidget& window_;
    /// Where the user saved last; "" before that.
    QString folder_;
};

}  // namespace tintora
