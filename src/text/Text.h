#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Text as the whole program holds it: sequences of 16-bit code units.
///
/// Lengths and offsets count code units, never characters or bytes. A lone surrogate is a code unit like any other and
/// is kept. Collections of texts are ordered and passed by value.
namespace tintora {

using Text = std::u16string;
using TextView = std::u16string_view;
using Texts = std::vector<Text>;

}  // namespace tintora
