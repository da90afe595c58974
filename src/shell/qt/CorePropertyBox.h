#pragma once

#include <QComboBox>
#include <QString>
#include <QStringList>
#include <optional>

class QStringListModel;

namespace tintora {

/// A combo box for the value of one property, which may be typed or chosen from a list.
///
/// Its signals mean the user: neither a text nor a list that the program shows raises any. While `TextChanged` is
/// raised the guard of the box is set, and what the program shows then is put aside: the text is the user's own.
///
///     box.ShowList({"8pt", "9pt"});
///     box.ClearText();
///     box.ShowText("9pt");        // and no signal
///
/// A box that has the focus keeps a text of the user's making, with its caret, through a `ClearText` and a `ShowText`
/// of what the document has made of it before, as "12pt" of "12pt !important".
class CorePropertyBox : public QComboBox {
    Q_OBJECT

  public:
    /// The box is as wide as it takes to show `sample`.
    CorePropertyBox(const QString& sample, QWidget* parent);

    /// Does nothing while the guard is set.
    void ClearText();
    void ShowText(const QString& text);

    /// The choices. The text stays as it is; so does the list while the guard is set or the user has it open.
    void ShowList(const QStringList& words);

    [[nodiscard]] bool IsGuarded() const noexcept { return isGuarded_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

    /// Reports the text as the user's, whether it has changed or not; nothing while the guard is set.
    void Report();

  Q_SIGNALS:
    /// The user has changed the text: each letter typed does, and each choice of another text. White space around it
    /// counts for nothing.
    void TextChanged(const QString& text);

    /// Enter or Esc: the user has done with the box.
    void Left();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    /// The text with its caret and selection.
    struct Hand {
        QString text;
        int caret = 0;
        int selected = 0;
    };

    [[nodiscard]] Hand PresentHand() const;
    void PutBack(const Hand& hand);
    void ReportChange();

    QString sample_;
    QStringListModel* words_;
    bool isGuarded_ = false;
    /// What was shown or reported last.
    QString knownText_;
    /// What `ShowText` was given last.
    QString documentText_;
    /// What `ClearText` has taken from under the user's hands.
    std::optional<Hand> inHand_;
};

}  // namespace tintora
