#include "shell/qt/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace tintora {

namespace {

constexpr int Gap = 6;

}  // namespace

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), text_(new QLabel(this)), layout_(new QHBoxLayout(this)) {
    setObjectName(QStringLiteral("NoticeBar"));
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    auto* const icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size));
    text_->setTextFormat(Qt::PlainText);
    text_->setForegroundRole(QPalette::ToolTipText);
    layout_->setContentsMargins(Gap, Gap / 2, Gap, Gap / 2);
    layout_->setSpacing(Gap);
    layout_->addWidget(icon);
    layout_->addWidget(text_, 1);
    hide();
}

void NoticeBar::AddButton(const QString& text, const QString& toolTip, std::function<void()> work) {
    auto* const button = new QPushButton(text, this);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, work = std::move(work)] {
        hide();
        work();
    });
    layout_->addWidget(button);
}

void NoticeBar::ShowNotice(const QString& text) {
    text_->setText(text);
    show();
}

}  // namespace tintora
