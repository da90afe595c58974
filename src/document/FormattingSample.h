#pragma once

#include "settings/Separators.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <optional>

/// The rule in which the user edits the white space that the formatter writes.
///
///     body {font-weight: bold;       <- between "body" and "{", behind "{", behind ";"
///     text-decoration: underline;}   <- in front of "}"
///                                    <- behind "}"
///
/// White space are the five units that `IsWhitespaceUnit` knows.
namespace tintora {

/// The rule, laid out with the five separators.
[[nodiscard]] Text FormattingSampleText(const Separators& separators);

/// The separators that a sample shows. Each is nothing if the character that it hangs on isn't there; line ends in it
/// are carriage returns, whatever they are in the sample.
struct SampleSeparators {
    std::optional<Text> statement;
    std::optional<Text> property;
    std::optional<Text> selectorDeclaration;
    std::optional<Text> lastProperty;
    std::optional<Text> firstProperty;

    friend bool operator==(const SampleSeparators&, const SampleSeparators&) = default;
};

[[nodiscard]] SampleSeparators ReadFormattingSample(TextView sample);

/// The sample with the stored separators.
[[nodiscard]] Text LoadFormattingOptions(SettingsStore& store);

/// Stores the separators that the sample shows; those that it doesn't show stay as they are stored.
void ApplyFormattingOptions(SettingsStore& store, TextView sample);

/// Codes of the keys that may act in the sample, besides those of `key_code`.
namespace sample_key {
inline constexpr int Tab = 9;
inline constexpr int Return = 13;
inline constexpr int FirstArrow = 37;
inline constexpr int LastArrow = 40;
}  // namespace sample_key

/// Where the caret stands in the sample, and what is selected: 0-based offsets, in either order.
struct SampleSelection {
    int anchor = 0;
    int caret = 0;
};

/// Whether a key may act, so that nothing but white space changes. Nothing acts while something is selected. The arrow
/// keys move; Return, Space and Tab act beside white space, Delete in front of it and Backspace behind it, and none of
/// these with Control or Alt, where they mean words and lines. The start and the end of a line count as white space,
/// and so does what lies outside of the text.
///
/// `shift` is the sum that `shift_state` tells of.
[[nodiscard]] bool MayKeyActInSample(TextView sample, const SampleSelection& selection, int code, int shift) noexcept;

}  // namespace tintora
