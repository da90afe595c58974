#include "validation/ArgumentLimit.h"

#include "text/Encoding.h"

#include <unistd.h>

namespace tintora {

namespace {

/// The system's own measure: an argument and its NUL fill at most this many pages of memory.
constexpr std::size_t PagesOfOneArgument = 32;

}  // namespace

std::size_t LongestArgument() noexcept {
    return PagesOfOneArgument * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) - 1;
}

bool IsTooLongForOneArgument(TextView text) { return Utf8FromText(text).size() > LongestArgument(); }

}  // namespace tintora
