#include "cli/Console.h"

#include "settings/SettingKeys.h"
#include "text/Encoding.h"

#include <istream>
#include <iterator>
#include <ostream>

namespace tintora::cli {

namespace {

/// The unit that a backslash and `letter` stand for; 0 if they stand for nothing.
char16_t EscapedUnit(char16_t letter) {
    switch (letter) {
        case u'r': return u'\r';
        case u'n': return u'\n';
        case u't': return u'\t';
        case u'\\': return u'\\';
        default: return 0;
    }
}

Text WithoutEscapes(TextView value) {
    Text result;
    for (std::size_t index = 0; index < value.size(); ++index) {
        const char16_t unit = value[index] == u'\\' && index + 1 < value.size() ? EscapedUnit(value[index + 1]) : 0;
        result.push_back(unit == 0 ? value[index] : unit);
        if (unit != 0)
            ++index;
    }
    return result;
}

}  // namespace

void Report(Console& console, const std::string& what, const std::string& why) {
    console.errors << "tintora-cli: " << what << ": " << why << '\n';
}

void ApplySetting(Console& console, const std::string& assignment) {
    const Text text = TextFromUtf8(assignment);
    const std::size_t slash = text.find(u'/');
    const std::size_t equals = text.find(u'=', slash == Text::npos ? 0 : slash);
    if (slash == Text::npos || equals == Text::npos)
        throw CommandFailure("--setting " + assignment, "not of the form SECTION/KEY=VALUE");
    console.settings.SaveSetting(ApplicationTitle, TextView(text).substr(0, slash),
                                 TextView(text).substr(slash + 1, equals - slash - 1),
                                 WithoutEscapes(TextView(text).substr(equals + 1)));
}

Text ReadStandardInput(Console& console) {
    const std::string bytes{std::istreambuf_iterator<char>(console.input), std::istreambuf_iterator<char>()};
    return DecodeBytes(bytes).text;
}

Texts Lines(TextView text) {
    Texts lines;
    while (!text.empty()) {
        const std::size_t end = text.find(u'\n');
        TextView line = text.substr(0, end);
        if (end != TextView::npos && line.ends_with(u'\r'))
            line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(end == TextView::npos ? text.size() : end + 1);
    }
    return lines;
}

}  // namespace tintora::cli
