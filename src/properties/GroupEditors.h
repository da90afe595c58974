#pragma once

#include "text/Text.h"

#include <span>

/// The group editors of the property palette: one form for each family of properties.
///
/// An editor is known by its number. Help has no keys of its own here: it goes by the number of the property that had
/// the focus last.
namespace tintora {

namespace group_editor {

inline constexpr int TextStyle = 0;
inline constexpr int TextLayout = 1;
inline constexpr int Background = 2;
inline constexpr int Border = 3;
inline constexpr int MarginPadding = 4;
inline constexpr int PageLayout = 5;
inline constexpr int DisplayType = 6;
inline constexpr int AdvancedText = 7;
inline constexpr int AdvancedPageLayout = 8;
inline constexpr int UserInterface = 9;
inline constexpr int PageBreak = 10;
inline constexpr int Quotes = 12;
inline constexpr int Content = 14;

// Numbers with a name and no editor.

inline constexpr int Counter = 11;
inline constexpr int TextShadow = 13;
inline constexpr int Print = 15;

}  // namespace group_editor

struct GroupEditorEntry {
    int number;

    /// The class, and the name of the control that is made of it.
    TextView className;

    /// What stands above the form.
    TextView caption;
};

/// All editors, by their numbers.
[[nodiscard]] std::span<const GroupEditorEntry> GroupEditors() noexcept;

/// `nullptr` for a number that has no editor: 11, 13, 15 and all outside of 0 to 14.
[[nodiscard]] const GroupEditorEntry* FindGroupEditor(int number) noexcept;

/// What the creation of an editor is given: "tintora3." and the class.
[[nodiscard]] Text GroupEditorIdentifier(const GroupEditorEntry& editor);

/// The name by which an editor counts as shown already; 11, 13 and 15 have one too. "" for 5, so that the page layout
/// editor is never shown already and is made anew on each request, and "" for any other number.
[[nodiscard]] TextView GetPropertiesEditorNameFromNumber(int number) noexcept;

/// Whether a request for the editor `wanted` leaves the one of the class `currentName` where it is.
[[nodiscard]] bool IsShownAlready(TextView currentName, int wanted) noexcept;

}  // namespace tintora
