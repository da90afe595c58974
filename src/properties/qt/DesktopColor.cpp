#include "properties/qt/ColorPickerPortal.h"
#include "properties/qt/ScreenColor.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <memory>

namespace tintora {

namespace {

/// Reads pixels, where programs may see the screen.
class ReadScreen final : public ScreenColor {
  public:
    [[nodiscard]] Way PresentWay() const override { return Way::Directly; }
    [[nodiscard]] QString WhyNot() const override { return {}; }

    [[nodiscard]] std::optional<QColor> ColorAt(const QPoint& place) override {
        QScreen* const screen = QGuiApplication::screenAt(place);
        if (screen == nullptr)
            return std::nullopt;
        const QPoint onScreen = place - screen->geometry().topLeft();
        const QImage pixel = screen->grabWindow(0, onScreen.x(), onScreen.y(), 1, 1).toImage();
        if (pixel.isNull())
            return std::nullopt;
        return pixel.pixelColor(0, 0);
    }

    void Ask(QObject* /*context*/, const Answer& answer) override { answer(std::nullopt); }
};

/// Asks the portal, where they may not.
class AskedScreen final : public ScreenColor {
  public:
    [[nodiscard]] Way PresentWay() const override { return portal_.IsThere() ? Way::ByQuestion : Way::NotAtAll; }
    [[nodiscard]] QString WhyNot() const override {
        return QStringLiteral("This desktop lets no program read colors from the screen, and offers no color picker.");
    }

    [[nodiscard]] std::optional<QColor> ColorAt(const QPoint& /*place*/) override { return std::nullopt; }
    void Ask(QObject* context, const Answer& answer) override { portal_.PickColor(context, answer); }

  private:
    ColorPickerPortal portal_{QDBusConnection::sessionBus(), QStringLiteral("org.freedesktop.portal.Desktop")};
};

std::unique_ptr<ScreenColor> MakeScreenColor() {
    if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland")))
        return std::make_unique<AskedScreen>();
    return std::make_unique<ReadScreen>();
}

}  // namespace

ScreenColor& DesktopColor() {
    static const std::unique_ptr<ScreenColor> color = MakeScreenColor();
    return *color;
}

}  // namespace tintora
