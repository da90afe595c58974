#pragma once

#include "properties/ControlRows.h"
#include "properties/qt/ValueControl.h"

#include <functional>
#include <memory>
#include <vector>

class QGridLayout;

namespace tintora {

class ColorFields;
class KeywordChoice;
class LengthFields;

/// A value control that consists of others. What they report it takes for a change of its own value, which it reports
/// whole and once; their focus it passes on.
///
/// The parts share what the compound holds: a part that the user has changed has changed that already, and after any
/// other change `ShowState` has all parts show it.
class CompoundControl : public ValueControl {
    Q_OBJECT

  public:
    void SetLabel(const QString& label) override;

    /// To the part with that number, and for a number that no part has to `MainPart`.
    void EditProperty(int property) override;

    void Paste() override;
    void Cut() override;
    void Copy() override;
    void ClearSelection() override;

  protected:
    CompoundControl(int number, const ControlSurroundings& surroundings, QWidget* parent);

    // Makes a part, which isn't in any layout yet.

    ValueControl& MakePart(const ControlPart& part, std::shared_ptr<KeywordChoice> choice);
    ValueControl& MakePart(const ControlPart& part, std::shared_ptr<LengthFields> fields);
    ValueControl& MakePart(const ControlPart& part, std::shared_ptr<ColorFields> fields);

    /// Puts a part below the others, with its label in front.
    void AddRow(QGridLayout& grid, const ControlPart& part, ValueControl& control);

    /// A grid for rows that fills the control.
    QGridLayout& MakeGrid();

    /// Has the parts show what the compound holds.
    void ShowState();

    /// Enables what the present value allows.
    virtual void UpdateEditor() = 0;

    /// What gets the focus for the compound itself: the first part, unless there is a better one.
    [[nodiscard]] virtual ValueControl& MainPart() const { return *parts_.front().control; }

    /// The user has changed the part that reports under `number`.
    virtual void HandlePartChange(int number);

    /// What the focus of a part is reported under.
    [[nodiscard]] virtual int FocusNumber(int part) const { return part; }

    /// A field of the compound's own passes its focus on.
    void ReportFocusOf(QWidget& field);
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] Text PreferredUnits() const;

  private:
    struct Part {
        ValueControl* control;
        QString label;
        std::function<void()> show;
    };

    template <typename Control>
    ValueControl& Adopt(const ControlPart& part, Control* control);

    [[nodiscard]] ValueControl* PartWithFocus() const;

    std::vector<Part> parts_;
};

}  // namespace tintora
