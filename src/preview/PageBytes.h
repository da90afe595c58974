#pragma once

#include "text/Text.h"

#include <optional>
#include <string>
#include <string_view>

/// The bytes of a page as text and back. A page may be in UTF-16, which begins with a byte order mark; all others are
/// read as `DecodeBytes` tells. A page that is read and written comes back as it was, byte for byte.
namespace tintora {

enum class PageEncoding { Utf8, Windows1252, Utf16LittleEndian, Utf16BigEndian };

struct PageText {
    /// With the byte order mark, if the page has one.
    Text text;
    PageEncoding encoding = PageEncoding::Utf8;
    /// The last byte of a page in UTF-16 whose bytes don't make pairs; "" otherwise.
    std::string rest;
};

[[nodiscard]] PageText DecodePage(std::string_view bytes);

/// Whether the bytes are those of a page in UTF-16. A browser takes the style sheets of such a page for UTF-16 too,
/// unless they tell their encoding by a byte order mark.
[[nodiscard]] bool IsPageInUtf16(std::string_view bytes) noexcept;

/// Nothing if the encoding has no bytes for one of the characters.
[[nodiscard]] std::optional<std::string> EncodePage(const PageText& page);

}  // namespace tintora
