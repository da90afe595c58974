#pragma once

#include <QPalette>
#include <QToolButton>
#include <cstdint>

namespace tintora {

/// A colour of tokens, with its swatch and its value: "#rrggbb", or "Default" for the one that the text control has by
/// itself. A click asks for another by the system's colour dialogue; the arrow beside it, or the down key, offers the
/// default.
class TokenColorButton : public QToolButton {
    Q_OBJECT

  public:
    /// `title` names the colour to the user. `ownRole` is the colour of the palette that stands for the default.
    TokenColorButton(const QString& title, QPalette::ColorRole ownRole, QWidget* parent = nullptr);

    /// 24 bits with red in the lowest byte; -1 for the default.
    [[nodiscard]] std::int32_t Color() const noexcept { return color_; }

    /// Shows another colour; nobody is told.
    void SetColor(std::int32_t color);

    [[nodiscard]] QSize sizeHint() const override;

  Q_SIGNALS:
    /// The user has chosen a colour.
    void ColorChosen(std::int32_t color);

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AskColor();
    void Choose(std::int32_t color);
    void ShowColor();
    [[nodiscard]] QColor ShownColor() const;

    QString title_;
    QPalette::ColorRole ownRole_;
    std::int32_t color_ = -1;
};

}  // namespace tintora
