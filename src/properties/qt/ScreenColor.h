#pragma once

#include <QColor>
#include <QPoint>
#include <QString>
#include <functional>
#include <optional>

class QObject;

namespace tintora {

/// Where the colours of the screen come from, be it within the windows of the program or beyond.
class ScreenColor {
  public:
    enum class Way {
        Directly,    ///< any pixel can be read
        ByQuestion,  ///< the desktop asks the user for one
        NotAtAll,
    };

    using Answer = std::function<void(const std::optional<QColor>& color)>;

    virtual ~ScreenColor() = default;

    [[nodiscard]] virtual Way PresentWay() const = 0;

    /// For the user: why there is no way.
    [[nodiscard]] virtual QString WhyNot() const = 0;

    /// The colour of a pixel, by its place among all screens; nothing where no screen is.
    [[nodiscard]] virtual std::optional<QColor> ColorAt(const QPoint& place) = 0;

    /// Has the desktop ask the user for a pixel, and returns at once. The answer is nothing if the user doesn't want
    /// to, or if there turns out to be no way; nobody is answered once `context` has gone.
    virtual void Ask(QObject* context, const Answer& answer) = 0;
};

/// The screens of the desktop on which the program runs.
[[nodiscard]] ScreenColor& DesktopColor();

}  // namespace tintora
