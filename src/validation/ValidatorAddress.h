#pragma once

#include "text/Text.h"

/// Addresses of the W3C's CSS validator. A style sheet goes there as a part of the address itself.
///
///     ValidatorAddress(u"a{color:red}")
///     // https://jigsaw.w3.org/css-validator/validator?text=a%7Bcolor%3Ared%7D&warning=1&profile=css2&usermedium=all
namespace tintora {

/// The page with the form into which a style sheet can be copied.
inline constexpr TextView ValidatorFormAddress = u"https://jigsaw.w3.org/css-validator/#validate_by_input";

/// `text` as the validator's address carries it, of whatever length.
///
/// Nine characters become "%" and their two hexadecimal digits: % # { } : ; / * and the blank. All others stay as they
/// are, line ends, "&", "+" and "=" among them, and so an "&" ends the text for the validator. That is meant: this is
/// no encoder for URLs in general.
[[nodiscard]] Text EncodeForURL(TextView text);

/// The address at which the validator judges a style sheet, which may be empty or of whatever length.
[[nodiscard]] Text ValidatorAddress(TextView styleSheet);

}  // namespace tintora
