#include "model/SelectorExplanation.h"
#include "text/Encoding.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    constexpr std::size_t LongestSelector = 4096;
    if (size <= LongestSelector)
        static_cast<void>(
            tintora::GetSelectorExplanation(tintora::DecodeBytes({reinterpret_cast<const char*>(data), size}).text));
    return 0;
}
