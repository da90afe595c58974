#include "preview/PageBytes.h"

#include "text/Encoding.h"

namespace tintora {

namespace {

constexpr std::string_view LittleEndianMark = "\xFF\xFE";
constexpr std::string_view BigEndianMark = "\xFE\xFF";

/// Which of the two bytes of a unit is the low one.
std::size_t LowByte(PageEncoding encoding) { return encoding == PageEncoding::Utf16LittleEndian ? 0 : 1; }

PageText DecodeUtf16(std::string_view bytes, PageEncoding encoding) {
    const std::size_t low = LowByte(encoding);
    const auto byteAt = [bytes](std::size_t index) -> unsigned { return static_cast<unsigned char>(bytes[index]); };
    PageText page{.text = {}, .encoding = encoding, .rest = {}};
    page.text.reserve(bytes.size() / 2);
    for (std::size_t index = 0; index + 1 < bytes.size(); index += 2)
        page.text.push_back(static_cast<char16_t>(byteAt(index + low) + byteAt(index + 1 - low) * 0x100U));
    if (bytes.size() % 2 == 1)
        page.rest = bytes.back();
    return page;
}

std::string EncodeUtf16(const PageText& page) {
    std::string bytes;
    bytes.reserve(page.text.size() * 2 + page.rest.size());
    for (const char16_t unit : page.text) {
        const char pair[] = {static_cast<char>(unit % 0x100U), static_cast<char>(unit / 0x100U)};
        const std::size_t low = LowByte(page.encoding);
        bytes.push_back(pair[low]);
        bytes.push_back(pair[1 - low]);
    }
    return bytes += page.rest;
}

}  // namespace

PageText DecodePage(std::string_view bytes) {
    if (bytes.starts_with(LittleEndianMark))
        return DecodeUtf16(bytes, PageEncoding::Utf16LittleEndian);
    if (bytes.starts_with(BigEndianMark))
        return DecodeUtf16(bytes, PageEncoding::Utf16BigEndian);
    DecodedText decoded = DecodeBytes(bytes);
    const bool isUtf8 = decoded.encoding == Encoding::Utf8;
    return {std::move(decoded.text), isUtf8 ? PageEncoding::Utf8 : PageEncoding::Windows1252, {}};
}

bool IsPageInUtf16(std::string_view bytes) noexcept {
    return bytes.starts_with(LittleEndianMark) || bytes.starts_with(BigEndianMark);
}

std::optional<std::string> EncodePage(const PageText& page) {
    switch (page.encoding) {
        case PageEncoding::Utf8: return EncodeText(page.text, Encoding::Utf8);
        case PageEncoding::Windows1252: return EncodeText(page.text, Encoding::Windows1252);
        case PageEncoding::Utf16LittleEndian:
        case PageEncoding::Utf16BigEndian: return EncodeUtf16(page);
    }
    return std::nullopt;
}

}  // namespace tintora
