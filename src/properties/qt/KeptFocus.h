#pragma once

#include <QString>
#include <optional>

namespace tintora {

class GroupEditorForm;

/// The place of the focus in a form that goes, for the case that the same form is made anew.
class KeptFocus {
  public:
    /// Notes the place; true if the form has the focus.
    bool Keep(const GroupEditorForm& form);

    /// Gives the focus to the same place, with the caret where it was, and forgets it. Another form gets nothing, and
    /// neither does a part that can't have it.
    void GiveBack(const GroupEditorForm& form);

    void Forget() { place_.reset(); }

  private:
    struct Place {
        int editor = 0;
        int row = 0;
        /// By names, from the part up to the control.
        QString path;
        int caret = 0;
    };

    std::optional<Place> place_;
};

}  // namespace tintora
