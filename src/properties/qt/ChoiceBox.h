#pragma once

#include "properties/ChoiceList.h"
#include "text/Text.h"

#include <QComboBox>
#include <QPointer>
#include <optional>

namespace tintora {

class ChoiceModel;

/// A list of the palette, which drops down, and into which a text may be typed if it is editable.
///
/// Its signals mean the user: nothing that the program shows raises any. The wheel turns a list that has the focus, and
/// no other; nothing is added to what is typed; and leaving a list chooses nothing.
///
///     box.ShowChoice(fields.Units());
///     connect(&box, &ChoiceBox::Chosen, this, [&](int index) { fields.ChooseUnit(box.EntryAt(index)); });
class ChoiceBox : public QComboBox {
    Q_OBJECT

  public:
    enum class Kind { Fixed, Editable };

    /// The box is as wide as it takes to show `sample`, and can become as narrow as it takes to show `least`.
    ChoiceBox(Kind kind, const QString& name, const QString& sample, const QString& least, QWidget* parent);

    /// Shows the entries and the chosen one. While the list is open it stays as it is, until it closes.
    void ShowChoice(const ChoiceList& list) { ShowText(list, list.ChosenText()); }

    /// The same with another text in the field, which has to be editable. A text that is there keeps its caret.
    void ShowText(const ChoiceList& list, TextView text);

    /// The text of an entry by its 0-based index, as it was shown; "" for an index that isn't there.
    [[nodiscard]] Text EntryAt(int index) const;

    /// What the field shows, as far as it shows it.
    [[nodiscard]] Text ShownText() const;

    void MarkBad(bool isBad);
    [[nodiscard]] bool IsMarkedBad() const noexcept { return isBad_; }

    [[nodiscard]] QSize sizeHint() const override { return SizeFor(sample_); }
    [[nodiscard]] QSize minimumSizeHint() const override { return SizeFor(least_); }
    void showPopup() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// What was typed has gone into the style sheet, so that to undo it is a matter of the style sheet.
    void NoteTextWritten();

  Q_SIGNALS:
    /// The user has chosen the entry with the 0-based index, which may be the present one.
    void Chosen(int index);

    /// The user has changed the text of the field.
    void Typed();

    /// Enter in the field.
    void Entered();

    void ListHasDroppedDown();

    /// The keyboard focus has come and gone; the list that drops down doesn't count.
    void FocusHasCome();
    void FocusHasGone();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    struct Shown {
        ChoiceList list;
        Text text;
    };

    [[nodiscard]] QSize SizeFor(const QString& sample) const;
    [[nodiscard]] bool IsListOpen() const;
    void ShowIndexAndText(int index, const QString& text);
    void ShowWaiting();
    void ShowMark();
    void PaintFixed();

    QString sample_;
    QString least_;
    ChoiceModel* model_;
    QPointer<QWidget> openList_;
    /// What came while the list was open.
    std::optional<Shown> waiting_;
    bool isBad_ = false;
    bool isLeaving_ = false;
};

}  // namespace tintora
