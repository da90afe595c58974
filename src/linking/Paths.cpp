#include "linking/Paths.h"

#include "linking/LiteralSearch.h"
#include "text/LowerCase.h"

#include <algorithm>

namespace tintora {

namespace {

constexpr TextView Separators = u"/\\";
constexpr TextView StepUp = u"../";

Text WithSlashes(Text path) {
    std::replace(path.begin(), path.end(), u'\\', u'/');
    return path;
}

Text WithSeparator(Text path, char16_t separator) {
    std::replace(path.begin(), path.end(), u'/', separator);
    return path;
}

/// Without its first `count` units; "" if it has no more.
TextView Without(TextView text, std::size_t count) { return text.substr(std::min(count, text.size())); }

std::size_t CountStepsUp(TextView folder) {
    std::size_t count = 0;
    for (std::size_t found = folder.find(StepUp); found != TextView::npos; found = folder.find(StepUp, found + 1))
        ++count;
    return count;
}

/// `folder` without its last `count` names. Where it has only one left, that one stays.
TextView ParentFolder(TextView folder, std::size_t count) {
    for (; count > 0; --count) {
        const std::size_t slash = folder.rfind(u'/');
        if (slash == TextView::npos)
            break;
        folder = folder.substr(0, slash);
    }
    return folder;
}

/// `folder` without as many as `count` steps up at its start.
TextView WithoutStepsUp(TextView folder, std::size_t count) {
    for (; count > 0 && folder.starts_with(StepUp); --count)
        folder.remove_prefix(StepUp.size());
    return folder;
}

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

Text GetRelativePath(TextView fromFile, TextView toFile) {
    Text toName = GetFileNamePart(toFile);
    const Text toFolder = WithSlashes(GetFolderPath(toFile)) + u"/";
    const Text fromFolder = WithSlashes(GetFolderPath(fromFile)) + u"/";
    if (toFolder == fromFolder)
        return toName;
    // The slash is looked for from the first character on that the folders don't share.
    const std::size_t shared = LiteralSearch(fromFolder).LongestPrefixIn(toFolder);
    const std::size_t slash = toFolder.rfind(u'/', shared);
    if (slash == Text::npos)
        return Text(toFile);
    const TextView toRest = Without(toFolder, slash + 1);
    const TextView fromRest = Without(fromFolder, slash + 1);
    Text path;
    for (auto ups = std::count(fromRest.begin(), fromRest.end(), u'/'); ups > 0; --ups)
        path += StepUp;
    return path.append(toRest).append(toName);
}

Text ResolveRelativePath(TextView basePath, TextView relativePath) {
    const bool hasBackslash = basePath.find(u'\\') != TextView::npos || relativePath.find(u'\\') != TextView::npos;
    const char16_t separator = hasBackslash ? u'\\' : u'/';
    const Text name = GetFileNamePart(relativePath);
    const Text folder = WithSlashes(GetFolderPath(relativePath));
    const Text baseFolder = WithSlashes(GetFolderPath(basePath));
    const std::size_t count = CountStepsUp(folder);
    if (count == 0)
        return WithSeparator(baseFolder, separator) + separator + folder + separator + name;
    Text path(ParentFolder(baseFolder, count));
    path.append(u"/").append(WithoutStepsUp(folder, count)).append(u"/").append(name);
    return WithSeparator(std::move(path), separator);
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
