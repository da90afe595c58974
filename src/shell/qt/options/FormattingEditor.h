#pragma once

#include "shell/qt/options/StyleSheetSample.h"

namespace tintora {

/// The rule in which the user edits the formatter's white space. Only keys change it, and only those that
/// `MayKeyActInSample` lets act; Shift with Tab leaves it.
class FormattingEditor : public StyleSheetSample {
    Q_OBJECT

  public:
    explicit FormattingEditor(const QString& name, QWidget* parent = nullptr);

    /// Loads the rule. New lines end with carriage returns, as they do in separators.
    void LoadSample(TextView sample);

  protected:
    void changeEvent(QEvent* event) override;
    [[nodiscard]] bool InterceptKey(QKeyEvent& event) override;

    /// What is selected would keep all keys from acting when the focus comes back by a key.
    void FocusLeaves() override;

  private:
    void ShowWhitespace();
    void LetKeyAct(QKeyEvent& event);

    bool isKeyActing_ = false;
};

}  // namespace tintora
