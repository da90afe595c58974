#pragma once

#include "language/FrontDocument.h"
#include "properties/qt/ControlSurroundings.h"
#include "text/Text.h"

#include <QWidget>

namespace tintora {

/// A control that edits one value, given as the text of the style sheet. It knows nothing of what it stands in, and
/// reports by its signals alone: to a group editor, or to a compound control, which is a value control itself.
///
/// A report comes from what the user does. While it is filled a control may report too; whoever fills it doesn't
/// listen then.
class ValueControl : public QWidget {
    Q_OBJECT

  public:
    /// `number` is what the control reports under. All of `surroundings` must outlive the control.
    ValueControl(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] int PropertyName() const noexcept { return number_; }

    /// The CSS text of what is shown; "" for nothing chosen.
    [[nodiscard]] virtual Text GetValue() const = 0;

    /// Shows a value.
    virtual void SetValue(TextView value) = 0;

    /// Shows nothing, and marks nothing. What the document in front uses is offered; `front` may be `nullptr`, and
    /// need not outlive the call.
    virtual void Clear(const FrontDocument* front) = 0;

    /// Takes the keyboard focus, if the control is enabled and visible; a compound one gives it to the part that stands
    /// for the property, and an unknown property leads to the first.
    virtual void EditProperty(int property) = 0;

    /// What the control is called in front of it: its parts tell it to readers of the screen.
    virtual void SetLabel(const QString& label) { setAccessibleName(label); }

    /// Whether anything can be done here. A compound control, when it is enabled, enables those of its parts that its
    /// value allows.
    void Enable() { SetUsable(true); }
    void Disable() { SetUsable(false); }
    virtual void SetUsable(bool isUsable) { setEnabled(isUsable); }

    // The clipboard, for the part that has the focus.
    virtual void Paste() = 0;
    virtual void Cut() = 0;
    virtual void Copy() = 0;
    /// Empties the selection of the part that has the focus, as a cut without the clipboard.
    virtual void ClearSelection() = 0;

    /// Whether the user has changed something since the last `PreviewIfDirty`.
    [[nodiscard]] bool Dirty() const noexcept { return isDirty_; }
    void SetDirty(bool isDirty) noexcept { isDirty_ = isDirty; }

    /// A list has lost the focus: the control isn't dirty any more. Nothing else happens; a live preview comes from the
    /// change of the text.
    void PreviewIfDirty() noexcept { isDirty_ = false; }

  Q_SIGNALS:
    /// The value has changed; `number` is `PropertyName`.
    void PropertyHasChanged(const Text& value, int number);

    /// The control, or the part of it that stands for the property, has got the keyboard focus.
    void PropertyHasFocus(int number);

    /// A list has dropped down.
    void ListHasDroppedDown();

  protected:
    [[nodiscard]] const ControlSurroundings& Surroundings() const noexcept { return surroundings_; }

    /// Raises `PropertyHasChanged` with the present value; then the control is dirty.
    void ReportChange();

  private:
    int number_;
    ControlSurroundings surroundings_;
    bool isDirty_ = false;
};

}  // namespace tintora
