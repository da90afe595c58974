#include "preview/qt/fwRulePreview.h"

#include <QVBoxLayout>

namespace tintora {

fwRulePreview::fwRulePreview(PageTurns& turns, QWidget* parent)
    : QWidget(parent), browser_(new PageView(this)), pane_(*browser_, turns) {
    setObjectName(QStringLiteral("fwRulePreview"));
    browser_->setObjectName(QStringLiteral("RulePreview"));
    browser_->setAccessibleName(QStringLiteral("Preview of the current rule"));
    browser_->hide();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(browser_);
}

}  // namespace tintora
