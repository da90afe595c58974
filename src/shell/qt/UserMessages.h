#pragma once

#include <QString>

class QWidget;

namespace tintora {

/// What the program says to the user in a box of its own, and what it asks.
class UserMessages {
  public:
    virtual ~UserMessages() = default;

    /// Tells something, in one sentence, with the reason or the consequence in another.
    virtual void Tell(const QString& text, const QString& details) = 0;

    /// Asks whether unsaved changes of the named document may be lost.
    [[nodiscard]] virtual bool MayDiscardChanges(const QString& caption) = 0;
};

/// The messages as modal boxes over a window.
class MessageBoxes final : public UserMessages {
  public:
    /// `window` must outlive the object.
    explicit MessageBoxes(QWidget& window) : window_(window) {}

    void Tell(const QString& text, const QString& details) override;
    [[nodiscard]] bool MayDiscardChanges(const QString& caption) override;

  private:
    QWidget& window_;
};

}  // namespace tintora
