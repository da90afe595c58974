#pragma once

#include "properties/DeclarationReading.h"
#include "properties/PaletteFlags.h"
#include "properties/PaletteSurroundings.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <set>

namespace tintora {

/// The two roads of a group editor: from the text to its controls, and from a control to the text.
///
/// While it fills its controls nothing that they report goes into the text, and while it changes the text nothing that
/// comes back goes into the controls. So the field that is typed in keeps its caret, and the others aren't refilled.
///
///     editor.SetProperties({u"font: 12px serif"});
///     editor.PropertyHasChanged(u"14px", 1001);   // `font-size` goes, `font` becomes "14px serif"
class GroupEditor {
  public:
    /// All of it must outlive the editor.
    struct Surroundings {
        PaletteFlags& flags;
        EditorControls& controls;
        EditedDocuments& documents;
        SettingsStore& settings;
    };

    GroupEditor(int number, const Surroundings& surroundings);

    [[nodiscard]] int Number() const noexcept { return number_; }

    /// Shows declaration texts. During a change of the text it does nothing. Of the border's sides those are marked
    /// that have a declaration; a change of a side keeps its mark true.
    void SetProperties(const Texts& declarations);

    /// A control reports a value. While the controls are filled, and during another change, it does nothing. Whatever
    /// has to change for it in the text, the user takes back in one step.
    ///
    /// Without a document `ChangingProperty` stays set: nobody enables the controls as long as none is open.
    void PropertyHasChanged(TextView value, int number);

    /// Brings the controls in line that depend on the value of another: the offsets on `position`, the sections on
    /// `display`, which shows the element's own value where the rule has none.
    void UpdateEditors();

    /// Whether the editor's controls can be enabled in the current rule: those of generated content only in a rule that
    /// has some.
    [[nodiscard]] bool CanBeEnabled() const;

    /// A list of words or units has dropped down: moving through it starts no preview for each entry.
    void ListHasDroppedDown();

    /// The previews of the document and of the rule, but for the time of a set-up or a change.
    void PreviewNow();

    [[nodiscard]] const EditorState& State() const noexcept { return state_; }

  private:
    void ShowBorderSections(const PropertyValues& values);
    void ShowDisplaySection();
    void UpdateAfterChange(TextView value, int number);

    int number_;
    Surroundings surroundings_;
    EditorState state_;

    /// The borders that have declarations beside the one that is written.
    std::set<int> bordersWithLonghands_;
};

}  // namespace tintora
