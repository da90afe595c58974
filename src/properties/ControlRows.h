#pragma once

#include "text/Text.h"

#include <span>

/// The rows of the group editors: which properties an editor shows, each with its label and its control.
namespace tintora {

enum class ControlKind {
    Keyword,         ///< a list of words
    Length,          ///< sign, number and unit, or a word
    Color,           ///< a colour in one of its forms
    URL,             ///< an address, or a word
    TextDecoration,  ///< five check boxes
    Pair,            ///< two lengths, the second after the first
    Clip,            ///< a word, or four lengths
    Edge,            ///< width, colour and style
    Quotes,          ///< pairs of strings
    Content,         ///< parts of generated content
};

/// A control that reports to the group editor.
struct ControlRow {
    /// The editor that it stands in, and the sub-editor or tab in there; "" for none.
    int editor;
    TextView section;

    TextView control;
    TextView label;
    ControlKind kind;

    /// What it reports its value under. The name of the property is the row's tool tip.
    int number;

    /// Whether a length may carry a sign.
    bool showSign = false;
};

/// A control within a compound one, which it reports to.
struct ControlPart {
    /// The row's number.
    int compound;

    TextView control;
    TextView label;
    ControlKind kind;

    /// What its focus is reported under.
    int number;

    /// The property whose words it offers and by which it judges its value.
    int wordsOf;

    bool showSign = false;
};

/// The rows of all editors, in the order in which they stand.
[[nodiscard]] std::span<const ControlRow> ControlRows() noexcept;

/// The rows of one editor; none for a number that has no editor.
[[nodiscard]] std::span<const ControlRow> RowsOfEditor(int editor) noexcept;

/// The parts of a compound control; none for what is none.
[[nodiscard]] std::span<const ControlPart> PartsOfControl(int compound) noexcept;

/// The row of an editor that shows a declaration of `name`, which is in lower case; `nullptr` for a name that the
/// editor doesn't handle. A border or outline control shows the longhands of its edge too. Shorthands that are taken
/// apart, `font` and `background`, have no row.
[[nodiscard]] const ControlRow* RowOfDeclaration(int editor, TextView name) noexcept;

/// What gets the focus when an editor is to edit a property: a row, and the part of it that stands for the property.
struct FocusPlace {
    const ControlRow* row = nullptr;

    /// `nullptr` where the row's control finds the place itself.
    const ControlPart* part = nullptr;
};

/// Where an editor takes the focus for a property; no row for a number that it ignores.
///
/// A border number leads to its side: the numbers of colours and widths to these parts, the others to the style.
[[nodiscard]] FocusPlace PlaceOfFocus(int editor, int property) noexcept;

}  // namespace tintora
