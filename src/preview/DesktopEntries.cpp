#include "preview/DesktopEntries.h"

#include "linking/TextFiles.h"
#include "text/Encoding.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace tintora {

namespace {

constexpr TextView Extension = u".desktop";

Texts SplitAt(TextView text, char16_t separator) {
    Texts pieces;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        if (end > start)
            pieces.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return pieces;
}

char16_t EscapedUnit(char16_t letter) {
    switch (letter) {
        case u's': return u' ';
        case u'n': return u'\n';
        case u't': return u'\t';
        case u'r': return u'\r';
        default: return letter;
    }
}

/// The value of a key with its escapes resolved. One that isn't known stays as it stands.
Text ResolvedValue(TextView value) {
    constexpr TextView Known = u"sntr\\";
    Text resolved;
    for (std::size_t index = 0; index < value.size(); ++index) {
        const bool isEscape =
            value[index] == u'\\' && index + 1 < value.size() && Known.find(value[index + 1]) != TextView::npos;
        resolved.push_back(isEscape ? EscapedUnit(value[++index]) : value[index]);
    }
    return resolved;
}

/// The keys of the group that describes the file, with their values as they stand.
std::map<TextView, TextView> MainGroup(TextView text) {
    std::map<TextView, TextView> values;
    bool isInGroup = false;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(u'\n', start), text.size());
        const TextView line = TrimmedView(text.substr(start, end - start));
        start = end + 1;
        const std::size_t sign = line.find(u'=');
        if (line.starts_with(u'['))
            isInGroup = line == u"[Desktop Entry]";
        else if (isInGroup && !line.starts_with(u'#') && sign != TextView::npos)
            values.emplace(TrimmedView(line.substr(0, sign)), TrimmedView(line.substr(sign + 1)));
    }
    return values;
}

/// The desktop files in the folder and below it, in order. What the system exports is often links to the files.
Texts DesktopFiles(TextView folder) {
    namespace fs = std::filesystem;
    Texts files;
    std::error_code failed;
    fs::recursive_directory_iterator entry(FileNameFromText(folder), fs::directory_options::skip_permission_denied,
                                           failed);
    for (; !failed && entry != fs::recursive_directory_iterator(); entry.increment(failed)) {
        std::error_code ignored;
        Text path = TextFromFileName(entry->path().native());
        if (path.ends_with(Extension) && entry->is_regular_file(ignored))
            files.push_back(std::move(path));
    }
    std::ranges::sort(files);
    return files;
}

/// The name by which a file of a folder takes the place of another: its path below the folder, joined by "-".
Text IdOf(TextView path, TextView folder) {
    Text id(path.substr(folder.size() + 1));
    std::ranges::replace(id, u'/', u'-');
    return id;
}

std::optional<DesktopEntry> ReadDesktopEntry(const Text& path) {
    try {
        std::optional<DesktopEntry> entry = ParseDesktopEntry(ReadTextFile(path));
        if (entry)
            entry->path = path;
        return entry;
    } catch (const FileFailure&) {
        return std::nullopt;
    }
}

Text WithoutSlash(Text folder) {
    while (folder.size() > 1 && folder.ends_with(u'/'))
        folder.pop_back();
    return folder;
}

}  // namespace

Texts CommandWords(TextView command) {
    Texts words;
    Text word;
    bool isWord = false;
    bool isQuoted = false;
    for (std::size_t index = 0; index < command.size(); ++index) {
        const char16_t unit = command[index];
        if (unit == u'"') {
            isQuoted = !isQuoted;
            isWord = true;
        } else if (!isQuoted && IsWhitespaceUnit(unit)) {
            if (isWord)
                words.push_back(std::move(word));
            word.clear();
            isWord = false;
        } else {
            const bool isEscape = isQuoted && unit == u'\\' && index + 1 < command.size();
            word.push_back(isEscape ? command[++index] : unit);
            isWord = true;
        }
    }
    if (isWord)
        words.push_back(std::move(word));
    return words;
}

std::optional<DesktopEntry> ParseDesktopEntry(TextView text) {
    const std::map<TextView, TextView> values = MainGroup(text);
    const auto value = [&](TextView key) {
        const auto found = values.find(key);
        return found == values.end() ? Text() : ResolvedValue(found->second);
    };
    if (value(u"Type") != u"Application")
        return std::nullopt;
    DesktopEntry entry;
    entry.name = value(u"Name");
    entry.command = CommandWords(value(u"Exec"));
    entry.tryExec = value(u"TryExec");
    entry.categories = SplitAt(value(u"Categories"), u';');
    entry.isHidden = value(u"Hidden") == u"true" || value(u"NoDisplay") == u"true";
    entry.needsTerminal = value(u"Terminal") == u"true";
    return entry;
}

std::vector<DesktopEntry> ReadDesktopEntries(const Texts& folders) {
    std::vector<DesktopEntry> entries;
    std::set<Text> ids;
    for (const Text& given : folders) {
        const Text folder = WithoutSlash(given);
        for (const Text& file : DesktopFiles(folder)) {
            if (!ids.insert(IdOf(file, folder)).second)
                continue;
            std::optional<DesktopEntry> entry = ReadDesktopEntry(file);
            if (entry && !entry->isHidden)
                entries.push_back(std::move(*entry));
        }
    }
    return entries;
}

Texts ApplicationFolders(const DataFolders& data) {
    Texts folders;
    const auto add = [&](TextView folder) {
        if (folder.starts_with(u'/'))
            folders.push_back(WithoutSlash(Text(folder)) + u"/applications");
    };
    add(data.dataHome.empty() && !data.home.empty() ? WithoutSlash(data.home) + u"/.local/share" : data.dataHome);
    for (const Text& folder :
         SplitAt(data.dataDirs.empty() ? TextView(u"/usr/local/share:/usr/share") : data.dataDirs, u':'))
        add(folder);
    return folders;
}

}  // namespace tintora
