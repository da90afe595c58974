#include "shell/qt/options/TokenColorButton.h"

#include "editor/TokenStyles.h"
#include "language/Colors.h"
#include "text/qt/QtText.h"

#include <QColorDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <algorithm>

namespace tintora {

namespace {

QString DefaultText() { return QStringLiteral("Default"); }

QString TextOf(std::int32_t color) {
    if (color == DefaultTokenColor)
        return DefaultText();
    return QLatin1Char('#') + ToQString(ColorToHex(static_cast<ColorValue>(color) & 0xFFFFFFU));
}

QPixmap Swatch(const QColor& color, const QColor& border, const QSize& size, qreal pixelRatio) {
    QPixmap swatch(size * pixelRatio);
    swatch.setDevicePixelRatio(pixelRatio);
    swatch.fill(border);
    QPainter painter(&swatch);
    painter.fillRect(QRect(QPoint(0, 0), size).adjusted(1, 1, -1, -1), color);
    return swatch;
}

}  // namespace

TokenColorButton::TokenColorButton(const QString& title, QPalette::ColorRole ownRole, QWidget* parent)
    : QToolButton(parent), title_(title), ownRole_(ownRole) {
    setAccessibleName(title);
    setToolTip(QStringLiteral("Choose a color (Down for the default)"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setPopupMode(QToolButton::MenuButtonPopup);
    setFocusPolicy(Qt::StrongFocus);
    auto* const choices = new QMenu(this);
    choices->addAction(QStringLiteral("&Choose…"), this, &TokenColorButton::AskColor);
    choices->addAction(QStringLiteral("&Default"), this, [this] { Choose(DefaultTokenColor); });
    setMenu(choices);
    connect(this, &QToolButton::clicked, this, &TokenColorButton::AskColor);
    ShowColor();
}

void TokenColorButton::SetColor(std::int32_t color) {
    color_ = color;
    ShowColor();
}

// The same whichever colour is shown, so that nothing moves.
QSize TokenColorButton::sizeHint() const {
    const auto width = [this](const QString& text) { return fontMetrics().size(Qt::TextShowMnemonic, text).width(); };
    const int widest = std::max(width(DefaultText()), width(QStringLiteral("#dddddd")));
    return QToolButton::sizeHint() + QSize(std::max(widest - width(text()), 0), 0);
}

void TokenColorButton::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        ShowColor();
}

void TokenColorButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down)
        showMenu();
    else
        QToolButton::keyPressEvent(event);
}

void TokenColorButton::AskColor() {
    auto* const dialog = new QColorDialog(ShownColor(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title_);
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& chosen) {
        const auto component = [](int value) { return static_cast<unsigned>(value); };
        Choose(static_cast<std::int32_t>(
            ColorFromComponents(component(chosen.red()), component(chosen.green()), component(chosen.blue()))));
    });
    dialog->open();
}

void TokenColorButton::Choose(std::int32_t color) {
    SetColor(color);
    Q_EMIT ColorChosen(color);
}

QColor TokenColorButton::ShownColor() const {
    if (color_ == DefaultTokenColor)
        return palette().color(ownRole_);
    const auto bits = static_cast<std::uint32_t>(color_);
    const auto component = [=](unsigned shift) { return static_cast<int>((bits >> shift) & 0xFFU); };
    return QColor(component(0), component(8), component(16));
}

void TokenColorButton::ShowColor() {
    setText(TextOf(color_));
    setAccessibleDescription(text());
    QColor border = palette().color(QPalette::ButtonText);
    border.setAlphaF(0.6F);
    setIcon(Swatch(ShownColor(), border, iconSize(), devicePixelRatioF()));
}

}  // namespace tintora
