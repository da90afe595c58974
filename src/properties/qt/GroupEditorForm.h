#pragma once

#include "properties/ControlRows.h"
#include "properties/GroupEditor.h"
#include "properties/qt/ControlSurroundings.h"
#include "text/Text.h"

#include <QWidget>
#include <map>
#include <set>

class QVBoxLayout;

namespace tintora {

class LabeledRows;
class ValueControl;

/// A group editor: the form for one family of properties. It leads `GroupEditor` by its controls, and has the name of
/// the editor's class. `MakeGroupEditorForm` makes the one with a number.
///
/// It begins empty and disabled.
///
///     form.Enable();
///     form.SetProperties({u"color: red"});
///     form.EditProperty(1004);        // the focus goes to the colour
class GroupEditorForm : public QWidget, private EditorControls {
    Q_OBJECT

  public:
    /// All of `surroundings` must outlive the form. The form of an editor makes its controls.
    GroupEditorForm(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] int Number() const noexcept { return core_.Number(); }

    // The shared flags.

    [[nodiscard]] bool SettingUp() const noexcept { return surroundings_.flags.SettingUp; }
    void SetSettingUp(bool isOn) noexcept { surroundings_.flags.SettingUp = isOn; }
    [[nodiscard]] bool ChangingProperty() const noexcept { return surroundings_.flags.ChangingProperty; }
    void SetChangingProperty(bool isOn) noexcept { surroundings_.flags.ChangingProperty = isOn; }

    /// Shows declaration texts; during a change of the text it does nothing. What isn't told stays: the focus, the tab.
    void SetProperties(const Texts& declarations);

    /// A control reports a value: it goes into the text, and the focus stays where it is. Does nothing while the
    /// controls are filled, and during another change.
    void PropertyHasChanged(const Text& value, int number);

    void ClearPropertyEditors();

    /// The editor of generated content is enabled only in a rule that has some.
    void Enable();
    void Disable();

    /// The focus goes to the control for a property, whose section or tab is shown first. A property that the editor
    /// has no control for is ignored.
    void EditProperty(int property);

    void PreviewNow() { core_.PreviewNow(); }

    // The clipboard, for the control with the focus; nothing where none has it.
    void Paste();
    void Cut();
    void Copy();
    void ClearSelection();

    /// The control of a row; `nullptr` for a number that no row has.
    [[nodiscard]] ValueControl* FindControl(int number) const;

    /// As narrow as the labels above their controls.
    [[nodiscard]] QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// A control has got the focus.
    void PropertyHasFocus(int property);

  protected:
    // For the forms.

    [[nodiscard]] const ControlSurroundings& Surroundings() const noexcept { return surroundings_; }
    [[nodiscard]] QVBoxLayout& Groups() const noexcept { return *groups_; }

    /// The control of a row of this editor.
    ValueControl* MakeControl(const ControlRow& row, QWidget* parent);

    /// Makes the control of a row and adds it, with its label.
    ValueControl* AddRow(LabeledRows& rows, const ControlRow& row);

    /// The controls are all there: they are empty from now on.
    void FinishControls();

    /// A section whose control is to get the focus must be seen.
    virtual void RevealSection(TextView section);

    virtual void EnabledChanged(bool isEnabled);

    bool event(QEvent* event) override;

    // EditorControls
    void Clear() override;
    void SetValue(int number, TextView value) override;
    [[nodiscard]] Text GetValue(int number) const override;
    void SetUsable(int number, bool isUsable) override;
    void ShowSection(TextView section) override;
    void MarkSection(TextView section, bool hasDeclaration) override;

  private:
    [[nodiscard]] ValueControl* ControlWithFocus() const;
    void SetAllUsable(bool isEnabled);
    [[nodiscard]] int LeastWidthOfControls() const;

    ControlSurroundings surroundings_;
    GroupEditor core_;
    QVBoxLayout* groups_;
    std::map<int, ValueControl*> controls_;
    std::set<int> unusable_;
    bool isEnabled_ = false;
};

}  // namespace tintora
