#pragma once

#include <QFrame>
#include <functional>

class QLabel;
class QPushButton;

namespace tintora {

/// A quiet line at the lower edge of a page that says what is wrong with it. It lies over the page, so that the page
/// doesn't move, takes no focus, and is hidden until it has something to say.
class PageNotice : public QFrame {
    Q_OBJECT

  public:
    explicit PageNotice(QWidget* parent);

    /// Says something that nothing can be done about.
    void Tell(const QString& text);

    /// Says something, with a button for what can be done about it. The button hides the line and then does its work.
    void Offer(const QString& text, const QString& button, const QString& toolTip, std::function<void()> work);

    [[nodiscard]] QString Words() const;

    /// Lies along the lower edge of its parent.
    void Place();

  private:
    void Say(const QString& text);

    QLabel* text_;
    QPushButton* button_;
    std::function<void()> work_;
};

}  // namespace tintora
