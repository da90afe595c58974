#pragma once

#include "shell/CorePropertiesToolbar.h"
#include "text/Text.h"

#include <vector>

/// What the tools of the core properties change in the current rule.
///
/// Each operation gives changes to be made one after another, in their order, by `PropertyHasChanged`: a rule that has
/// a property twice gets a change for each, reckoned from the declarations as they were. Names and words count in
/// whatever case; the values that are kept are kept as they were written, an "!important" among them.
namespace tintora {

/// The new value of the property with that number; "" removes its declaration.
struct PropertyChange {
    Text value;
    int number = 0;

    friend bool operator==(const PropertyChange&, const PropertyChange&) = default;
};

using PropertyChanges = std::vector<PropertyChange>;

/// For declarations of the current rule, as `GetCurrentStatementProperties` gives them: removes a `font-weight` that
/// contains "bold" ("bolder" does), and makes any other "bold"; adds one where there is none.
[[nodiscard]] PropertyChanges ToggleBold(const Texts& declarations);

/// The same with `font-style` and "italic".
[[nodiscard]] PropertyChanges ToggleItalic(const Texts& declarations);

/// Takes "underline" out of a `text-decoration`, or puts it behind what else the value has; adds a declaration where
/// there is none. A value that had nothing else becomes "". The word goes once, and a blank stays where it stood last:
///
///     "underline overline"   becomes   "overline"
///     "overline underline"   becomes   "overline "
///     "overline"             becomes   "overline underline"
[[nodiscard]] PropertyChanges ToggleUnderline(const Texts& declarations);

/// The same with "line-through".
[[nodiscard]] PropertyChanges ToggleLinethrough(const Texts& declarations);

/// `text-align` becomes `alignment`, one of `TextAlignTools`; its declaration goes where the toolbar shows the
/// alignment as checked.
[[nodiscard]] PropertyChange ToggleTextAlign(const CorePropertiesToolbar& shown, TextView alignment);

}  // namespace tintora
