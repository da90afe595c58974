#pragma once

#include <QColor>
#include <QToolButton>

namespace tintora {

/// A button that shows a colour.
class ColorSwatch final : public QToolButton {
    Q_OBJECT

  public:
    ColorSwatch(const QString& name, QWidget* parent);

    void SetColor(const QColor& color);
    [[nodiscard]] const QColor& Color() const noexcept { return color_; }

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor color_;
};

}  // namespace tintora
