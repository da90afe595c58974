#include "properties/qt/Eyedropper.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace tintora {

Eyedropper::Eyedropper(const QString& name, ScreenColor& source, QWidget* parent)
    : QToolButton(parent), source_(source) {
    setObjectName(name);
    setAccessibleName(QStringLiteral("Color picker"));
    setIcon(QIcon::fromTheme(QStringLiteral("color-picker")));
    setAutoRaise(true);
    connect(this, &QToolButton::clicked, this, &Eyedropper::AskDesktop);
    ShowWay();
}

void Eyedropper::ShowWay() {
    const ScreenColor::Way way = source_.PresentWay();
    // Nothing can be dragged by keys.
    setFocusPolicy(way == ScreenColor::Way::ByQuestion ? Qt::StrongFocus : Qt::NoFocus);
    setEnabled(way != ScreenColor::Way::NotAtAll);
    switch (way) {
        case ScreenColor::Way::Directly:
            setToolTip(QStringLiteral("Click and drag to pick colors from the screen"));
            break;
        case ScreenColor::Way::ByQuestion: setToolTip(QStringLiteral("Click to pick a color from the screen")); break;
        case ScreenColor::Way::NotAtAll: setToolTip(source_.WhyNot()); break;
    }
}

void Eyedropper::AskDesktop() {
    if (source_.PresentWay() != ScreenColor::Way::ByQuestion)
        return;
    Q_EMIT SearchBegins();
    source_.Ask(this, [this](const std::optional<QColor>& color) {
        ShowWay();
        Finish(color);
    });
}

void Eyedropper::mousePressEvent(QMouseEvent* event) {
    const bool isDirect = source_.PresentWay() == ScreenColor::Way::Directly;
    if (event->button() != Qt::LeftButton || !isDirect) {
        QToolButton::mousePressEvent(event);
        return;
    }
    isSampling_ = true;
    seen_.reset();
    setDown(true);
    grabMouse(Qt::CrossCursor);
    grabKeyboard();
    Q_EMIT SearchBegins();
}

void Eyedropper::mouseMoveEvent(QMouseEvent* event) {
    if (!isSampling_) {
        QToolButton::mouseMoveEvent(event);
        return;
    }
    const std::optional<QColor> color = source_.ColorAt(event->globalPosition().toPoint());
    if (!color)
        return;
    seen_ = color;
    Q_EMIT ColorSeen(*color);
}

void Eyedropper::mouseReleaseEvent(QMouseEvent* event) {
    if (!isSampling_ || event->button() != Qt::LeftButton) {
        QToolButton::mouseReleaseEvent(event);
        return;
    }
    StopSampling();
    Finish(seen_);
}

void Eyedropper::keyPressEvent(QKeyEvent* event) {
    if (isSampling_ && event->key() == Qt::Key_Escape)
        Cancel();
    else
        QToolButton::keyPressEvent(event);
}

void Eyedropper::hideEvent(QHideEvent* event) {
    QToolButton::hideEvent(event);
    Cancel();
}

void Eyedropper::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        Cancel();
}

void Eyedropper::StopSampling() {
    isSampling_ = false;
    releaseKeyboard();
    releaseMouse();
    setDown(false);
}

void Eyedropper::Cancel() {
    if (!isSampling_)
        return;
    StopSampling();
    Finish(std::nullopt);
}

void Eyedropper::Finish(const std::optional<QColor>& color) {
    if (color)
        Q_EMIT ColorPicked(*color);
    else
        Q_EMIT SearchEnds();
}

}  // namespace tintora
