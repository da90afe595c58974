#include "preview/WebBrowsers.h"

#include "language/Words.h"
#include "linking/Paths.h"
#include "text/LowerCase.h"

#include <algorithm>

namespace tintora {

namespace {

bool IsAssignment(const Text& word) { return word.find(u'=') != Text::npos && !word.starts_with(u'-'); }

/// The command without the settings of the environment in front of its program.
Texts WithoutEnvironment(Texts command) {
    if (command.empty() || GetFileNamePart(command.front()) != u"env")
        return command;
    const auto program = std::find_if_not(command.begin() + 1, command.end(), IsAssignment);
    return {program, command.end()};
}

/// Whether the command is a program that is given a page, and no more than options beside it.
bool IsPlainCommand(const Texts& command) {
    return !command.empty() && std::all_of(command.begin() + 1, command.end(), [](const Text& word) {
        return word.starts_with(u'%') || word.starts_with(u'-');
    });
}

/// The program that the system exports for an application in a sandbox: ".../bin/ID" for
/// ".../share/applications/ID.desktop"; "" without one.
Text ExportedProgram(TextView entryPath) {
    constexpr TextView Folder = u"/share/applications/";
    constexpr TextView Extension = u".desktop";
    const std::size_t folder = entryPath.rfind(Folder);
    if (folder == TextView::npos)
        return {};
    const TextView name = entryPath.substr(folder + Folder.size());
    Text program = Text(entryPath.substr(0, folder)) + u"/bin/";
    program.append(name.substr(0, name.size() - Extension.size()));
    return IsProgram(program) ? program : Text();
}

/// The path of the entry's program, "" where it can't be started with nothing but a page.
Text ProgramOf(const DesktopEntry& entry, const ProgramSearch& search) {
    const bool isThere = entry.tryExec.empty() || !search.Find(entry.tryExec).empty();
    if (!isThere || entry.needsTerminal)
        return {};
    const Texts command = WithoutEnvironment(entry.command);
    return IsPlainCommand(command) ? search.Find(command.front()) : ExportedProgram(entry.path);
}

bool HasOptions(const DesktopEntry& entry) {
    return std::ranges::any_of(WithoutEnvironment(entry.command),
                               [](const Text& word) { return word.starts_with(u'-'); });
}

/// The name of the first that passes the test; "" if none does.
template <typename Test>
Text FirstName(const std::vector<WebBrowser>& programs, Test passes) {
    const auto found = std::ranges::find_if(programs, passes);
    return found == programs.end() ? Text() : found->name;
}

}  // namespace

WebBrowsers::WebBrowsers(const Texts& applicationFolders, const ProgramSearch& search) {
    for (const DesktopEntry& entry : ReadDesktopEntries(applicationFolders))
        Take(entry, search);
    std::ranges::stable_sort(browsers_, {}, [](const WebBrowser& browser) { return LowerCase(browser.name); });
}

void WebBrowsers::Take(const DesktopEntry& entry, const ProgramSearch& search) {
    const bool isBrowser = ListContains(entry.categories, u"WebBrowser");
    Text path = entry.name.empty() ? Text() : ProgramOf(entry, search);
    // An application that is a program with options isn't what the program is called.
    if (path.empty() || (!isBrowser && HasOptions(entry)))
        return;
    const auto isSame = [&](const WebBrowser& other) { return IsSameProgram(other.path, path); };
    if (!isBrowser)
        others_.push_back({entry.name, std::move(path)});
    else if (std::ranges::none_of(browsers_, isSame))
        browsers_.push_back({entry.name, std::move(path)});
}

Text WebBrowsers::FileDescription(TextView path) const {
    const Text fileName = GetFileNamePart(path);
    const auto isSame = [&](const WebBrowser& other) { return IsSameProgram(other.path, path); };
    const auto isNamesake = [&](const WebBrowser& other) { return GetFileNamePart(other.path) == fileName; };
    for (const std::vector<WebBrowser>* const programs : {&browsers_, &others_}) {
        if (Text name = FirstName(*programs, isSame); !name.empty())
            return name;
        if (Text name = FirstName(*programs, isNamesake); !name.empty())
            return name;
    }
    return fileName;
}

}  // namespace tintora
