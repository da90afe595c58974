#include "text/Encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tintora {

namespace {

/// What windows-1252 has for the bytes 0x80 to 0x9F; the others are their own values.
constexpr std::array<char16_t, 32> UpperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t ReplacementCharacter = 0xFFFD;
constexpr char16_t EscapedByteBase = 0xDC00;

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// One character of UTF-8, and the number of bytes that it took; a length of 0 stands for a byte that can't be read.
struct Utf8Character {
    char32_t value = 0;
    std::size_t length = 0;
};

/// The number of bytes that a first byte announces, 0 if it can't be a first byte.
constexpr std::size_t AnnouncedLength(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

Utf8Character ReadUtf8Character(std::string_view bytes) {
    const auto first = static_cast<unsigned char>(bytes.front());
    const std::size_t length = AnnouncedLength(first);
    if (length <= 1 || bytes.size() < length)
        return {first, length == 1 ? std::size_t{1} : std::size_t{0}};
    char32_t value = first & (0xFFU >> (length + 1));
    for (std::size_t index = 1; index < length; ++index) {
        const auto next = static_cast<unsigned char>(bytes[index]);
        if ((next & 0xC0U) != 0x80U)
            return {};
        value = (value << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 5> LeastOfLength = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < LeastOfLength[length] || value > 0x10FFFF || isSurrogate)
        return {};
    return {value, length};
}

void AppendCharacter(Text& text, char32_t value) {
    if (value < 0x10000) {
        text.push_back(static_cast<char16_t>(value));
        return;
    }
    text.push_back(static_cast<char16_t>(0xD800 + ((value - 0x10000) >> 10U)));
    text.push_back(static_cast<char16_t>(0xDC00 + ((value - 0x10000) & 0x3FFU)));
}

/// Decodes UTF-8, asking `onBadByte` for the unit that stands for a byte that isn't; it ends the decoding with 0.
template <typename OnBadByte>
bool DecodeUtf8(std::string_view bytes, Text& text, OnBadByte onBadByte) {
    text.reserve(bytes.size());
    std::size_t index = 0;
    while (index < bytes.size()) {
        if (static_cast<unsigned char>(bytes[index]) < 0x80) {
            text.push_back(static_cast<char16_t>(bytes[index]));
            ++index;
            continue;
        }
        const Utf8Character character = ReadUtf8Character(bytes.substr(index));
        if (character.length != 0) {
            AppendCharacter(text, character.value);
            index += character.length;
            continue;
        }
        const char16_t unit = onBadByte(static_cast<unsigned char>(bytes[index]));
        if (unit == 0)
            return false;
        text.push_back(unit);
        ++index;
    }
    return true;
}

void AppendUtf8(std::string& bytes, char32_t value) {
    const auto append = [&](char32_t byte) { bytes.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    if (value < 0x80) {
        append(value);
    } else if (value < 0x800) {
        append(0xC0U | (value >> 6U));
        append(0x80U | (value & 0x3FU));
    } else if (value < 0x10000) {
        append(0xE0U | (value >> 12U));
        append(0x80U | ((value >> 6U) & 0x3FU));
        append(0x80U | (value & 0x3FU));
    } else {
        append(0xF0U | (value >> 18U));
        append(0x80U | ((value >> 12U) & 0x3FU));
        append(0x80U | ((value >> 6U) & 0x3FU));
        append(0x80U | (value & 0x3FU));
    }
}

/// Encodes UTF-8, handing each lone surrogate to `onLoneSurrogate`, which ends the encoding with false.
template <typename OnLoneSurrogate>
bool EncodeUtf8(TextView text, std::string& bytes, OnLoneSurrogate onLoneSurrogate) {
    bytes.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t unit = text[index];
        if (IsHighSurrogate(unit) && index + 1 < text.size() && IsLowSurrogate(text[index + 1])) {
            ++index;
            AppendUtf8(bytes, 0x10000 + ((char32_t{unit} - 0xD800) << 10U) + (char32_t{text[index]} - 0xDC00));
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            if (!onLoneSurrogate(unit))
                return false;
        } else {
            AppendUtf8(bytes, unit);
        }
    }
    return true;
}

char16_t Windows1252Unit(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? UpperControls[byte - std::size_t{0x80}] : char16_t{byte};
}

std::optional<char> Windows1252Byte(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(unit));
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), unit);
    if (found == UpperControls.end())
        return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(0x80 + (found - UpperControls.begin())));
}

}  // namespace

DecodedText DecodeBytes(std::string_view bytes) {
    DecodedText decoded;
    if (DecodeUtf8(bytes, decoded.text, [](unsigned char) { return char16_t{0}; }))
        return decoded;
    decoded.encoding = Encoding::Windows1252;
    decoded.text.resize(bytes.size());
    std::transform(bytes.begin(), bytes.end(), decoded.text.begin(),
                   [](char byte) { return Windows1252Unit(static_cast<unsigned char>(byte)); });
    return decoded;
}

std::optional<std::string> EncodeText(TextView text, Encoding encoding) {
    std::string bytes;
    if (encoding == Encoding::Utf8) {
        if (!EncodeUtf8(text, bytes, [](char16_t) { return false; }))
            return std::nullopt;
        return bytes;
    }
    bytes.reserve(text.size());
    for (const char16_t unit : text) {
        const std::optional<char> byte = Windows1252Byte(unit);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

Text TextFromUtf8(std::string_view bytes) {
    Text text;
    DecodeUtf8(bytes, text, [](unsigned char) { return ReplacementCharacter; });
    return text;
}

std::string Utf8FromText(TextView text) {
    std::string bytes;
    EncodeUtf8(text, bytes, [&](char16_t) {
        AppendUtf8(bytes, ReplacementCharacter);
        return true;
    });
    return bytes;
}

Text TextFromFileName(std::string_view bytes) {
    Text text;
    DecodeUtf8(bytes, text, [](unsigned char byte) { return static_cast<char16_t>(EscapedByteBase + byte); });
    return text;
}

std::string FileNameFromText(TextView text) {
    std::string bytes;
    EncodeUtf8(text, bytes, [&](char16_t unit) {
        if (unit >= EscapedByteBase + 0x80 && unit <= EscapedByteBase + 0xFF)
            bytes.push_back(static_cast<char>(static_cast<unsigned char>(unit - EscapedByteBase)));
        else
            AppendUtf8(bytes, ReplacementCharacter);
        return true;
    });
    return bytes;
}

}  // namespace tintora
