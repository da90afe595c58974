#pragma once

#include "properties/PropertyValues.h"
#include "text/Text.h"

/// The value of `background`, apart and together.
namespace tintora {

/// The values that the words of a `background` value give to the controls, each word to the first that takes it: a
/// colour, a URL or "none", a part of the words for the repeat, of those for the attachment, a length or a part of the
/// words for the position. A word that nothing takes, and an "!important", count for nothing.
///
/// The first word that gives the position a value comes alone, all behind it come together, with it in front.
///
///     TakeBackgroundApart(u"#fff fixed 10px 20px")
///         // 1015 "#fff", 1017 "fixed", 1018 "10px", 1018 "10px 20px"
[[nodiscard]] PropertyValues TakeBackgroundApart(TextView value);

/// The parts that a `background` value is written of, without those that are "": colour, image, repeat, attachment,
/// position.
[[nodiscard]] PropertyValues BackgroundPartsToWrite(const ShownValue& valueOf);

}  // namespace tintora
