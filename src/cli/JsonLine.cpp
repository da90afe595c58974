#include "cli/JsonLine.h"

#include "text/Encoding.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace tintora::cli {

namespace {

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// The index of the first lone surrogate, the length of the text if there is none.
std::size_t FindLoneSurrogate(TextView text) {
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (IsHighSurrogate(text[index]) && index + 1 < text.size() && IsLowSurrogate(text[index + 1]))
            ++index;
        else if (IsHighSurrogate(text[index]) || IsLowSurrogate(text[index]))
            return index;
    }
    return text.size();
}

/// The text between the quotes of a JSON string.
std::string Escaped(TextView text) {
    const std::string quoted = nlohmann::json(Utf8FromText(text)).dump();
    return quoted.substr(1, quoted.size() - 2);
}

std::string JsonString(TextView text) {
    std::string json = "\"";
    while (!text.empty()) {
        const std::size_t lone = FindLoneSurrogate(text);
        json += Escaped(text.substr(0, lone));
        text.remove_prefix(lone);
        if (text.empty())
            break;
        std::array<char, 8> escape{};
        std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(text.front()));
        json += escape.data();
        text.remove_prefix(1);
    }
    return json + "\"";
}

}  // namespace

JsonLine& JsonLine::AddMember(std::string_view key, const std::string& json) {
    if (!members_.empty())
        members_ += ',';
    members_ += nlohmann::json(key).dump() + ":" + json;
    return *this;
}

JsonLine& JsonLine::Add(std::string_view key, TextView value) { return AddMember(key, JsonString(value)); }

JsonLine& JsonLine::Add(std::string_view key, const Texts& values) {
    std::string array;
    for (const Text& value : values)
        array += (array.empty() ? "" : ",") + JsonString(value);
    return AddMember(key, "[" + array + "]");
}

JsonLine& JsonLine::Add(std::string_view key, int value) { return AddMember(key, std::to_string(value)); }

JsonLine& JsonLine::Add(std::string_view key, bool value) { return AddMember(key, value ? "true" : "false"); }

}  // namespace tintora::cli
