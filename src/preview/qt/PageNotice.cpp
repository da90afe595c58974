#include "preview/qt/PageNotice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace tintora {

namespace {

constexpr int Gap = 6;

}  // namespace

PageNotice::PageNotice(QWidget* parent) : QFrame(parent), text_(new QLabel(this)), button_(new QPushButton(this)) {
    setObjectName(QStringLiteral("PageNotice"));
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setWordWrap(true);
    button_->setFocusPolicy(Qt::TabFocus);
    button_->setAutoDefault(false);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(Gap, Gap / 2, Gap, Gap / 2);
    layout->setSpacing(Gap);
    layout->addWidget(text_, 1);
    layout->addWidget(button_);
    connect(button_, &QPushButton::clicked, this, [this] {
        hide();
        // The work may have the line say something else.
        const std::function<void()> work = std::move(work_);
        work();
    });
    hide();
}

void PageNotice::Tell(const QString& text) {
    button_->hide();
    Say(text);
}

void PageNotice::Offer(const QString& text, const QString& button, const QString& toolTip, std::function<void()> work) {
    work_ = std::move(work);
    button_->setText(button);
    button_->setToolTip(toolTip);
    button_->show();
    Say(text);
}

QString PageNotice::Words() const { return text_->text(); }

void PageNotice::Say(const QString& text) {
    text_->setText(text);
    Place();
    show();
    raise();
}

void PageNotice::Place() {
    const QSize room = parentWidget()->size();
    const int height = std::max(sizeHint().height(), layout()->heightForWidth(room.width()));
    setGeometry(0, room.height() - height, room.width(), height);
}

}  // namespace tintora
