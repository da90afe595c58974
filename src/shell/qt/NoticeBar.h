#pragma once

#include <QFrame>
#include <functional>

class QHBoxLayout;
class QLabel;

namespace tintora {

/// A quiet line over a document that says what has happened, with buttons for what can be done about it. It doesn't
/// take the focus from the text, and is hidden until it has something to say.
class NoticeBar : public QFrame {
    Q_OBJECT

  public:
    explicit NoticeBar(QWidget* parent);

    /// Adds a button, which hides the bar and then does its work.
    void AddButton(const QString& text, const QString& toolTip, std::function<void()> work);

    void ShowNotice(const QString& text);

  private:
    QLabel* text_;
    QHBoxLayout* layout_;
};

}  // namespace tintora
