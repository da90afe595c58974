#pragma once

#include "properties/FieldKeys.h"
#include "text/Text.h"

#include <QLineEdit>

namespace tintora {

/// A small text field of the palette that takes the keys which a judge lets pass: what else is typed is dropped,
/// whichever way it is typed in.
///
/// Where the judge knows the codes of the clipboard, these are told and not acted on, whether they come by keys or by
/// the menu of the field; then nothing comes into the field by dragging or by the middle button. Undo and redo are left
/// to the style sheet.
class FilteredField final : public QLineEdit {
    Q_OBJECT

  public:
    using Judge = FieldKey (*)(char16_t code) noexcept;

    /// The field is as wide as it takes to show `sample`, and can become as narrow as it takes to show `least`.
    FilteredField(const QString& name, Judge judge, const QString& sample, const QString& least, QWidget* parent);

    /// The code of the clipboard that a key stands for: that of "select all", of copying, pasting or cutting; 0 for any
    /// other key.
    [[nodiscard]] static char16_t ClipboardCode(QKeyEvent& event);

    /// A text that is there already keeps its caret.
    void ShowText(TextView text);

    void MarkBad(bool isBad);
    [[nodiscard]] bool IsMarkedBad() const noexcept { return isBad_; }

    [[nodiscard]] QSize sizeHint() const override { return SizeFor(sample_); }
    [[nodiscard]] QSize minimumSizeHint() const override { return SizeFor(least_); }

  Q_SIGNALS:
    /// A code of the clipboard: everything but `Passes` and `IsDropped`.
    void KeyWasTold(FieldKey key);

    void FocusHasCome();
    void MouseWasReleased();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] FieldKey JudgeKey(QKeyEvent& event) const;
    [[nodiscard]] bool TellsClipboard() const noexcept;
    [[nodiscard]] QSize SizeFor(const QString& sample) const;

    Judge judge_;
    QString sample_;
    QString least_;
    bool isBad_ = false;
};

}  // namespace tintora
