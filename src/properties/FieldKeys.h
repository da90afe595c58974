#pragma once

/// Which keys the small text fields of the palette take. Only printable characters and the four codes of the clipboard
/// are judged; whatever else a key gives (Tab, Esc, Enter, backspace) passes, and keys without a character aren't asked
/// about.
namespace tintora {

enum class FieldKey { Passes, IsDropped, SelectsAll, Copies, Pastes, Cuts };

/// The number of a length: digits and ".". The codes 1, 3, 22 and 24 select all, copy, paste and cut.
[[nodiscard]] FieldKey LengthFieldKey(char16_t code) noexcept;

/// The digits of a "#" colour: hexadecimal ones, in both cases.
[[nodiscard]] FieldKey HexFieldKey(char16_t code) noexcept;

/// The components of an "rgb()": digits, ",", ".", "%" and blank.
[[nodiscard]] FieldKey RGBFieldKey(char16_t code) noexcept;

}  // namespace tintora
