#include "text/Encoding.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const tintora::DecodedText decoded = tintora::DecodeBytes(bytes);
    if (tintora::EncodeText(decoded.text, decoded.encoding) != bytes)
        std::abort();
    if (tintora::FileNameFromText(tintora::TextFromFileName(bytes)) != bytes)
        std::abort();
    return 0;
}
