#pragma once

#include "text/Text.h"

#include <array>
#include <set>

/// What the toolbar of core properties shows of the current rule.
namespace tintora {

/// The tools of the toolbar by their keys, in their order: all of them are enabled in a rule, and none outside of one.
inline constexpr auto CorePropertyTools = std::to_array<TextView>({
    u"cbBPFontFamily",
    u"cbBPFontSize",
    u"miFoLeft",
    u"miFoRight",
    u"miFoCenter",
    u"miFoJustify",
    u"miFoBold",
    u"miFoItalic",
    u"miFoUnderline",
    u"miFoStrikeThrough",
    u"miColor",
    u"miBackgroundColor",
});

/// A value of `text-align`, in lower case, and the key of the tool that stands for it.
struct TextAlignTool {
    TextView alignment;
    TextView key;
};

inline constexpr auto TextAlignTools = std::to_array<TextAlignTool>({
    {u"left", u"miFoLeft"},
    {u"right", u"miFoRight"},
    {u"center", u"miFoCenter"},
    {u"justify", u"miFoJustify"},
});

/// The state of the toolbar. A new one is the cleared toolbar: nothing checked, and no texts.
struct CorePropertiesToolbar {
    /// The keys of the checked tools. They name tools of `CorePropertyTools`, and live as long as the program.
    std::set<TextView> checked;
    /// The text of "cbBPFontFamily".
    Text fontFamily;
    /// The text of "cbBPFontSize". Outside of a change that comes from this box itself it becomes "" for a rule without
    /// a `font-size`; during one the box is left alone then.
    Text fontSize;
    /// The list of "cbBPFontSize"; empty for a rule without a `font-size`, which leaves the list as it is.
    Texts fontSizes;

    [[nodiscard]] bool IsChecked(TextView key) const { return checked.contains(key); }

    friend bool operator==(const CorePropertiesToolbar&, const CorePropertiesToolbar&) = default;
};

/// The toolbar for the body of a rule, as `ExtractProperties` gives it. A last declaration without a ";" doesn't show:
///
///     SetUpCorePropertiesToolbar(u"{font-weight: bold;}")     // "miFoBold" is checked
///     SetUpCorePropertiesToolbar(u"{font-weight: bold}")      // nothing is
///
/// Throws `OverflowFailure` beyond the length limit.
[[nodiscard]] CorePropertiesToolbar SetUpCorePropertiesToolbar(TextView body);

/// The toolbar for declaration texts; what they say of other properties, and comments, count for nothing.
///
/// Names count in whatever case, and so does the value of `text-align`; "bold", "italic", "underline" and
/// "line-through" count only as they are written here. An "!important" is put aside. What one declaration checks no
/// later one unchecks, so that two tools of `text-align` may be checked; of two texts the last holds.
[[nodiscard]] CorePropertiesToolbar SetUpPropertiesEditors(const Texts& declarations);

/// The sizes to choose from beside a `font-size` of `value`, in its own unit: points, pixels, percentages, or em for
/// all other lengths. The keywords for a value that is no length, as in "Large", "12PT" or "".
[[nodiscard]] Texts SetupFontSizeSelector(TextView value);

}  // namespace tintora
