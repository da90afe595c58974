#pragma once

#include "language/Vocabulary.h"
#include "language/WordTable.h"

/// What the test of values goes by, gathered once for each property from the vocabulary and the value lists, so that a
/// test needs one look-up of the name.
namespace tintora {

/// The rules that only some properties have.
enum class OwnRule {
    None,
    TextDecoration,
    FontFamily,
    Number,
    Anything,
    URL,
    Transparent,
    BackgroundPosition,
    Rect,
    Outline,
    Sides,
    Background,
    ListStyle,
    Font,
};

struct PropertyRules {
    /// In lower case; "" for the names that nothing knows.
    TextView name;

    /// What `PropertyNumberFromName` gives.
    int number = UnknownProperty;

    /// The possible words; `nullptr` for `font-family`, whose words are the fonts of the document.
    const WordTable* words = nullptr;

    // Whether the property is in the list of that name.
    bool isLengthProperty = false;
    bool isPositiveLengthProperty = false;
    bool isURLProperty = false;
    bool isColorProperty = false;

    /// Whether the name begins with "border".
    bool isBorder = false;

    OwnRule ownRule = OwnRule::None;
};

/// The rules of the property `name`, in whatever case, without white space around it. A name that nothing knows has the
/// rules of an unknown property; "" is a property that takes lengths. The rules stay for the life of the process.
[[nodiscard]] const PropertyRules& RulesOfProperty(TextView name);

}  // namespace tintora
