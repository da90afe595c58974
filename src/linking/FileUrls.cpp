#include "linking/FileUrls.h"

#include "text/Encoding.h"
#include "text/LowerCase.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <string>

namespace tintora {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view PlainInURLs = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.~/";
constexpr TextView FileScheme = u"file";

bool IsLetter(char16_t unit) { return LowerCaseUnit(unit) >= u'a' && LowerCaseUnit(unit) <= u'z'; }

bool IsSchemeUnit(char16_t unit) {
    return IsLetter(unit) || (unit >= u'0' && unit <= u'9') || unit == u'+' || unit == u'-' || unit == u'.';
}

/// The length of the scheme at the start of `url`, without its ":"; 0 if it has none.
std::size_t SchemeLength(TextView url) {
    const auto end = std::ranges::find_if_not(url, IsSchemeUnit);
    if (url.empty() || !IsLetter(url.front()) || end == url.end() || *end != u':')
        return 0;
    return static_cast<std::size_t>(end - url.begin());
}

/// What a browser reads of an attribute's value: line ends and tabs don't count, nor does white space around it, and
/// "\" is "/".
Text CleanedURL(TextView url) {
    Text cleaned;
    for (const char16_t unit : TrimmedView(url)) {
        if (unit != u'\n' && unit != u'\r' && unit != u'\t')
            cleaned.push_back(unit == u'\\' ? u'/' : unit);
    }
    return cleaned;
}

/// The URL's path, still encoded; nothing if it isn't that of a local file.
std::optional<TextView> LocalPart(TextView url) {
    url = url.substr(0, url.find_first_of(u"?#"));
    if (const std::size_t scheme = SchemeLength(url); scheme > 0) {
        if (!EqualsLowered(url.substr(0, scheme), FileScheme))
            return std::nullopt;
        url.remove_prefix(scheme + 1);
    }
    if (!url.starts_with(u"//"))
        return url;
    url.remove_prefix(2);
    const std::size_t hostEnd = std::min(url.find(u'/'), url.size());
    const TextView host = url.substr(0, hostEnd);
    if (!host.empty() && !EqualsLowered(host, u"localhost"))
        return std::nullopt;
    return hostEnd == url.size() ? TextView(u"/") : url.substr(hostEnd);
}

/// The bytes that an encoded path stands for. A "%" without two digits behind it stands for itself.
std::optional<std::string> DecodedBytes(TextView part) {
    const std::string encoded = Utf8FromText(part);
    std::string bytes;
    for (std::size_t index = 0; index < encoded.size(); ++index) {
        unsigned value = 0;
        const char* const digits = encoded.data() + index + 1;
        const bool isEncoded = encoded[index] == '%' && index + 2 < encoded.size() &&
                               std::from_chars(digits, digits + 2, value, 16).ptr == digits + 2;
        if (!isEncoded) {
            bytes.push_back(encoded[index]);
            continue;
        }
        if (value == 0 || value == '/')
            return std::nullopt;
        bytes.push_back(static_cast<char>(value));
        index += 2;
    }
    return bytes;
}

}  // namespace

Text FileURLFromPath(TextView path) {
    constexpr TextView Digits = u"0123456789ABCDEF";
    Text url = u"file://";
    for (const char byte : FileNameFromText(path)) {
        const auto value = static_cast<unsigned char>(byte);
        if (PlainInURLs.find(byte) != std::string_view::npos)
            url.push_back(value);
        else
            url.append(1, u'%').append(1, Digits[value / 16U]).append(1, Digits[value % 16U]);
    }
    return url;
}

std::optional<Text> ResolveFileURL(TextView basePath, TextView url) {
    const Text cleaned = CleanedURL(url);
    const std::optional<TextView> part = LocalPart(cleaned);
    const std::optional<std::string> bytes = part ? DecodedBytes(*part) : std::nullopt;
    if (!bytes || bytes->find('\0') != std::string::npos)
        return std::nullopt;
    const fs::path base = FileNameFromText(basePath);
    const fs::path target = bytes->empty() ? base : base.parent_path() / *bytes;
    return TextFromFileName(target.lexically_normal().native());
}

bool IsSameFile(TextView path, TextView other) {
    if (path.find(u'\0') != TextView::npos || other.find(u'\0') != TextView::npos)
        return path == other;
    const fs::path one = FileNameFromText(path);
    const fs::path two = FileNameFromText(other);
    std::error_code failed;
    return one.lexically_normal() == two.lexically_normal() || (fs::equivalent(one, two, failed) && !failed);
}

}  // namespace tintora
