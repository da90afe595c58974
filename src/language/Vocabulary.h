#pragma once

#include "language/FrontDocument.h"
#include "language/WordTable.h"
#include "text/Text.h"

/// The one table of what the program knows of CSS properties: their numbers, names and words.
///
/// A number from 1000 up is a property, one below it a selector type; editors, help pages, word lists and warnings find
/// each other by it. Some properties have two numbers, and a few names and numbers don't answer each other; callers
/// depend on that as it is.
namespace tintora {

/// The number of a name that is no property.
inline constexpr int UnknownProperty = 999;

/// The number of a property's name, in whatever case; 999 for an unknown name.
///
/// A name with two numbers (`margin` and its sides) gives the higher one. `table-layout` is unknown, `voice-family` has
/// the number of `content`.
[[nodiscard]] int PropertyNumberFromName(TextView name);

/// The name of a property's number; "generic" for an unknown number, 1000 among them. 1071 is misspelled.
[[nodiscard]] TextView PropertyNameFromNumber(int number) noexcept;

/// Every name that has a number, in the order of the alphabet.
[[nodiscard]] Texts NamesOfProperties();

[[nodiscard]] constexpr bool IsPropertyNumber(int number) noexcept { return number >= 1000; }

/// The words that editors offer for a property, in the order of their lists. A number with no list of its own gives the
/// units; 1 gives none; 998 the absolute units; `font-family` gives `GetFontFamilyValues(front)`.
[[nodiscard]] Texts GetPossibleValues(int number, const FrontDocument* front = nullptr);

/// The words of `GetPossibleValues(number)` with no front document, prepared once, for tests that are run often.
[[nodiscard]] const WordTable& PossibleWords(int number);

/// The generic fonts and some common font lists, then the fonts of the front document.
[[nodiscard]] Texts GetFontFamilyValues(const FrontDocument* front);

/// The words of a numbered string, for the lists of the selector forms; empty with no front document. 1087 stands for
/// the selectors of the front document. A blank at the string's end gives a last word "".
[[nodiscard]] Texts GetWordList(int number, const FrontDocument* front);

/// Whether `name`, in whatever case, is an element that is a block by nature.
[[nodiscard]] bool IsBlockElementName(TextView name);

/// Whether `name` is exactly "li".
[[nodiscard]] bool IsListItemName(TextView name) noexcept;

/// Whether the `display` value is exactly "table" or "inline-table".
[[nodiscard]] bool IsTableDisplay(TextView value) noexcept;

}  // namespace tintora
