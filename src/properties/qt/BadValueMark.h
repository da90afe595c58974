#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// How a control shows that its value is bad: its text is pure red, on the ground that it has.
namespace tintora {

/// The palette with its texts in red.
[[nodiscard]] QPalette WithBadText(QPalette palette);

/// Whether red letters on that ground need a red frame to be noticed.
[[nodiscard]] bool NeedsBadFrame(const QColor& ground);

/// Draws the frame around a widget that is being painted.
void DrawBadFrame(QWidget& widget);

/// What a reader of the screen is told of a control.
[[nodiscard]] QString BadValueDescription(bool isBad);

}  // namespace tintora
