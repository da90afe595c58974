#pragma once

#include "language/Words.h"

/// The lists of properties by the kind of value that they take, and of colour words. They are built once and stay for
/// the life of the process.
namespace tintora {

/// Builds the lists, so that no later question waits for it. A list that is asked for earlier is built then.
void SetUpValueLists();

/// Property names. The two length lists end with an empty item, so the name "" takes lengths.
[[nodiscard]] const KeyedList& ColorProperties();
[[nodiscard]] const KeyedList& KeywordProperties();
[[nodiscard]] const KeyedList& LengthProperties();
[[nodiscard]] const KeyedList& PositiveLengthProperties();
[[nodiscard]] const KeyedList& URLProperties();

/// Colour words, to be asked with `ListContains`.
[[nodiscard]] const Texts& ColorKeywords();
[[nodiscard]] const Texts& SystemColorKeywords();

}  // namespace tintora
