#pragma once

#include "shell/qt/UserMessages.h"

#include <QDialog>
#include <functional>
#include <vector>

class QLabel;
class QListWidget;
class QPushButton;
class QTextEdit;

namespace tintora {

/// Shows the texts that a crash has left, one by one: when each was kept, when its file was changed, and what makes
/// the two differ. A copy that is dealt with leaves the list; closing the dialog leaves the others for a later start.
class RecoveryDialog : public QDialog {
    Q_OBJECT

  public:
    using Answer = UserMessages::RecoveryAnswer;

    /// `handle` gets the index of a copy and what is to be done about it. `copies` must outlive the dialog.
    RecoveryDialog(const std::vector<LeftCopy>& copies, std::function<void(std::size_t, Answer)> handle,
                   QWidget* parent);

  private:
    void SetUpList();
    void ShowCopy();
    void ShowDifference(const RecoveryRecord& copy, const QString& fileText);
    void Deal(Answer answer);
    [[nodiscard]] std::size_t CurrentIndex() const;

    const std::vector<LeftCopy>& copies_;
    std::function<void(std::size_t, Answer)> handle_;
    QListWidget* list_;
    QLabel* what_;
    QLabel* times_;
    QTextEdit* difference_;
    QPushButton* recover_;
    QPushButton* discard_;
};

}  // namespace tintora
