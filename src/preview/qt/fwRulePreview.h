#pragma once

#include "preview/PageTurns.h"
#include "preview/qt/PageViewPane.h"

#include <QWidget>

namespace tintora {

/// The pane that shows the declarations of the current rule on a paragraph.
class fwRulePreview : public QWidget {
    Q_OBJECT

  public:
    /// `turns` must outlive the form.
    explicit fwRulePreview(PageTurns& turns, QWidget* parent = nullptr);

    /// Whether the pane that holds the form is in view. Until it is, and while it is not, nothing is loaded.
    void SetInView(bool isInView) { browser_->setVisible(isInView); }

    /// The browser, which fills the form.
    [[nodiscard]] PageView& RulePreview() noexcept { return *browser_; }

    [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

  private:
    PageView* browser_;
    PageViewPane pane_;
};

}  // namespace tintora
