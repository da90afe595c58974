#pragma once

#include "text/Text.h"

#include <optional>

/// Where in a style sheet something may be offered, and what a choice writes there.
///
/// All of it is told from the nearest delimiters (":", ",", ";", "{" and "}") by plain scans, so that it holds in a
/// text that isn't CSS yet. Positions are 1-based, carets are 0-based offsets: the position of the same number is that
/// of the character in front of the caret. Any number may be given for either; beyond the text there is nothing.
namespace tintora {

/// The last position at or before `position` that holds a delimiter; 0 if there is none.
[[nodiscard]] int LastDelimiterBefore(TextView text, int position) noexcept;

/// The first position at or after `position` that holds a delimiter; the length of the text plus 1 if there is none.
/// With the number of a caret it is the delimiter in front of the caret, if one stands there.
[[nodiscard]] int NextDelimiterAfter(TextView text, int position) noexcept;

/// What stands between the delimiters around a position, trimmed; "" on a delimiter.
[[nodiscard]] Text TextBetweenDelimiters(TextView text, int position);

/// What a typed character does to a list that waits for a pause.
enum class TypeAheadKey {
    /// Has it wait, and leaves a list that waits already to its time.
    Starts,
    /// Keeps it from coming up.
    Stops,
    /// Has it wait anew, at a place where something is offered.
    Restarts,
    LeavesAlone,
};

/// The digit 0 leaves a list alone, where the other digits restart it.
[[nodiscard]] TypeAheadKey TypeAheadKeyOf(char16_t character) noexcept;

/// What is offered at a caret, as the type of a token: 19 for property names (behind ";" and "{"), 21 for values
/// (behind ":"), 0 for nothing.
[[nodiscard]] int TypeAheadTypeAt(TextView text, int caret) noexcept;

/// What a list is made for.
struct TypeAheadRequest {
    /// 19 or 21.
    int type = 0;

    /// For names what stands around the caret; for values the name of the property.
    Text first;

    /// For values what stands around the caret.
    Text second;

    friend bool operator==(const TypeAheadRequest&, const TypeAheadRequest&) = default;
};

/// The request of a caret; nothing where nothing is offered.
[[nodiscard]] std::optional<TypeAheadRequest> TypeAheadRequestAt(TextView text, int caret);

/// A replacement of the text from the offset `start` to before `end`.
struct TypeAheadEdit {
    int start = 0;
    int end = 0;
    Text text;

    friend bool operator==(const TypeAheadEdit&, const TypeAheadEdit&) = default;
};

/// What a choice from a list of `type` writes; nothing for the choice "", and for a type that is neither 19 nor 21.
///
/// A name replaces what stands between the delimiters around the caret, with the ":" behind it if one stands there; a
/// value likewise with its ";". Where the next delimiter is a "{" the rule isn't closed yet and what stands in front of
/// that is the next rule's selector: only what is in front of the caret goes, and the word at it. "}" replaces nothing.
///
///     {co|lor: red}      "content"   {\ncontent: red}
///     {color: |\nb {}    "red"       {color: red;\n\nb {}
[[nodiscard]] std::optional<TypeAheadEdit> EditOfTypeAheadChoice(TextView text, int caret, int type, TextView choice,
                                                                 TextView propertySeparator,
                                                                 TextView lastPropertySeparator);

}  // namespace tintora
