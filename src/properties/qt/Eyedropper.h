#pragma once

#include "properties/qt/ScreenColor.h"

#include <QToolButton>

namespace tintora {

/// The tool that takes a colour from the screen. While its button is held it has the mouse and the keyboard and follows
/// the pointer, also beyond the window; where pixels can't be read, a click has the desktop ask.
class Eyedropper final : public QToolButton {
    Q_OBJECT

  public:
    /// `source` must outlive the tool.
    Eyedropper(const QString& name, ScreenColor& source, QWidget* parent);

    /// Whether the button is held and colours are followed.
    [[nodiscard]] bool Sampling() const noexcept { return isSampling_; }

  Q_SIGNALS:
    /// The user begins to look for a colour.
    void SearchBegins();

    /// The colour under the pointer.
    void ColorSeen(const QColor& color);

    /// The one on which the button was released, or which the desktop gave.
    void ColorPicked(const QColor& color);

    /// The search ends without a colour: by Esc, or by a click that isn't dragged.
    void SearchEnds();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void ShowWay();
    void AskDesktop();
    void StopSampling();
    void Cancel();
    void Finish(const std::optional<QColor>& color);

    ScreenColor& source_;
    bool isSampling_ = false;
    std::optional<QColor> seen_;
};

}  // namespace tintora
