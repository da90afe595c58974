#include "linking/Paths.h"

#include "text/LowerCase.h"

namespace tintora {

namespace {

constexpr TextView Separators = u"/\\";

}  // namespace

Text GetFolderPath(TextView path) {
    const std::size_t separator = path.find_last_of(Separators);
    return separator == TextView::npos ? Text() : Text(path.substr(0, separator));
}

Text GetFileNamePart(TextView path) {
    const std::size_t separator = path.find_last_of(Separators);
    return Text(separator == TextView::npos ? path : path.substr(separator + 1));
}

Text GetExtension(TextView path) {
    const Text name = GetFileNamePart(path);
    const std::size_t dot = name.rfind(u'.');
    return dot == Text::npos ? Text() : LowerCase(TextView(name).substr(dot + 1));
}

Text QuoteText(TextView text) {
    Text quoted(text);
    if (quoted.empty())
        return quoted;
    if (quoted.front() != u'"')
        quoted.insert(quoted.begin(), u'"');
    if (quoted.back() != u'"')
        quoted.push_back(u'"');
    return quoted;
}

Text UnquoteText(TextView text) {
    if (text.starts_with(u'"'))
        text.remove_prefix(1);
    if (text.ends_with(u'"'))
        text.remove_suffix(1);
    return Text(text);
}

}  // namespace tintora
