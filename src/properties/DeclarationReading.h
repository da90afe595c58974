#pragma once

#include "properties/PropertyValues.h"
#include "text/Text.h"

#include <map>

/// The road from the declarations of a rule to the controls of a group editor, without the controls.
namespace tintora {

/// What a group editor keeps from its last reading until it writes.
struct EditorState {
    /// Whether `font` or `background` is written instead of the longhands; in the box editor, `margin` and `padding`.
    bool isShorthand = false;
    bool marginIsShorthand = false;
    bool paddingIsShorthand = false;

    /// The parts of `font` that the editor has no control for, by their numbers.
    std::map<int, Text> fontParts;

    friend bool operator==(const EditorState&, const EditorState&) = default;
};

struct EditorReading {
    EditorState state;

    /// What the cleared controls are to be given, in this order. A control may get several values.
    PropertyValues values;
};

/// What the controls of the editor are to show for these declaration texts.
///
/// Names count in whatever case. Names that the editor doesn't handle are passed over, as are comments and texts
/// without a ":". With `useShorthands` the editors of shorthands write them from the first change on.
///
///     ReadDeclarations(group_editor::MarginPadding, {u"margin: 1px 2px"}, false)
///         // 1020 "1px", 1022 "1px", 1021 "2px", 1023 "2px"; margins are written as a shorthand
[[nodiscard]] EditorReading ReadDeclarations(int editor, const Texts& declarations, bool useShorthands);

}  // namespace tintora
