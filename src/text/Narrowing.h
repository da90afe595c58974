#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>

/// The size limit of a style sheet.
///
/// Positions in a style sheet are signed 16-bit numbers. An operation that must fit a length or a position narrows it
/// with `Narrow` at its door, so that a text beyond the limit fails there, before anything is changed. Nothing between
/// that operation and the boundary of the application catches the failure.
namespace tintora {

/// The most code units that a style sheet holds.
inline constexpr std::size_t MaximumTextLength = 32767;

/// A length or position that doesn't fit a signed 16-bit number.
class OverflowFailure : public std::overflow_error {
  public:
    explicit OverflowFailure(long long value);

    /// The number that didn't fit.
    [[nodiscard]] long long Value() const noexcept { return value_; }

  private:
    long long value_;
};

/// `value` as a signed 16-bit number; throws `OverflowFailure` where it doesn't fit.
[[nodiscard]] std::int16_t Narrow(long long value);

/// The length of `text` as a signed 16-bit number; throws `OverflowFailure` beyond 32,767 code units.
template <typename AnyText>
std::int16_t NarrowLength(const AnyText& text) {
    return Narrow(static_cast<long long>(text.size()));
}

}  // namespace tintora
