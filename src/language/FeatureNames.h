#pragma once

#include "text/Text.h"

/// The names of features: of the selector types, numbered 0 to 18, and of the properties, numbered from 1000 up.
namespace tintora {

/// The selector types. A type below 5 has no declarations to show, or is no statement at all.
namespace selector_type {

inline constexpr int None = 0;
inline constexpr int AtImport = 1;
inline constexpr int AtMedia = 2;
inline constexpr int AtPage = 3;
inline constexpr int Comment = 4;
inline constexpr int Type = 5;
inline constexpr int Link = 6;
inline constexpr int Class = 7;
inline constexpr int ID = 8;
inline constexpr int Descendant = 9;
inline constexpr int Group = 10;
inline constexpr int Dynamic = 11;
inline constexpr int Language = 12;
inline constexpr int Typographical = 13;
inline constexpr int GeneratedContent = 14;
inline constexpr int FirstChild = 15;
inline constexpr int Child = 16;
inline constexpr int AdjacentSibling = 17;
inline constexpr int Attribute = 18;

}  // namespace selector_type

/// The name of a selector type; "Contents" for a number that has no name of its own.
[[nodiscard]] TextView SelectorTypeName(int type) noexcept;

/// `SelectorTypeName` below 1000, else the property's name.
[[nodiscard]] TextView GetFeatureName(int number) noexcept;

}  // namespace tintora
