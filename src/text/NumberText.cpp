#include "text/NumberText.h"

#include "text/Whitespace.h"

#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace tintora {

namespace {

constexpr bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

/// The number of digits at the start of `text`.
std::size_t DigitRun(TextView text) {
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count]))
        ++count;
    return count;
}

bool StartsWithSign(TextView text) { return text.starts_with(u'+') || text.starts_with(u'-'); }

/// The length of the exponent at the start of `text`, 0 if there is none.
std::size_t ExponentLength(TextView text) {
    if (!text.starts_with(u'e') && !text.starts_with(u'E'))
        return 0;
    const std::size_t sign = StartsWithSign(text.substr(1)) ? 1 : 0;
    const std::size_t digits = DigitRun(text.substr(1 + sign));
    return digits == 0 ? 0 : 1 + sign + digits;
}

/// The length of the number at the start of `text`, which has no blanks in front; 0 if there is none.
std::size_t NumberLength(TextView text) {
    const std::size_t sign = StartsWithSign(text) ? 1 : 0;
    std::size_t length = sign + DigitRun(text.substr(sign));
    std::size_t digits = length - sign;
    if (length < text.size() && text[length] == u'.') {
        const std::size_t decimals = DigitRun(text.substr(length + 1));
        digits += decimals;
        length += 1 + decimals;
    }
    return digits == 0 ? 0 : length + ExponentLength(text.substr(length));
}

/// Whether a number that no double holds is too large for one, and not too small.
bool IsTooLarge(std::string_view number) {
    const std::size_t exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos)
        return number.find('-', exponent) == std::string_view::npos;
    return number.substr(0, number.find('.')).find_first_of("123456789") != std::string_view::npos;
}

template <typename Number>
Text ConvertedNumber(Number number) {
    std::array<char, 400> buffer{};
    const auto result = [&] {
        if constexpr (std::is_floating_point_v<Number>)
            return std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::fixed);
        else
            return std::to_chars(buffer.begin(), buffer.end(), number);
    }();
    const std::string_view digits(buffer.begin(), static_cast<std::size_t>(result.ptr - buffer.begin()));
    Text text(digits.begin(), digits.end());
    return text.starts_with(u'-') ? text : u" " + text;
}

}  // namespace

Text NumberText(long long number) { return ConvertedNumber(number); }

Text NumberText(int number) { return ConvertedNumber(number); }

Text NumberText(double number) { return ConvertedNumber(number == 0 ? 0.0 : number); }

double LeadingNumber(TextView text) {
    text.remove_prefix(FindNonWhitespace(text, 0));
    TextView number = text.substr(0, NumberLength(text));
    if (number.starts_with(u'+'))
        number.remove_prefix(1);
    const std::string digits(number.begin(), number.end());
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range && IsTooLarge(digits))
        value = digits.starts_with('-') ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
    return value;
}

bool IsNumeric(TextView text) noexcept { return !text.empty() && NumberLength(text) == text.size(); }

}  // namespace tintora
