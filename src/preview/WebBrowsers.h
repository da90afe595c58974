#pragma once

#include "preview/DesktopEntries.h"
#include "preview/Programs.h"
#include "text/Text.h"

#include <vector>

namespace tintora {

/// A web browser of the system.
struct WebBrowser {
    /// As people know it.
    Text name;
    /// The path of its program, which can be started with a page as its one argument.
    Text path;
};

/// What the system's desktop files say of browsers. They are read when the object is made.
///
///     WebBrowsers browsers(ApplicationFolders(data), ProgramSearch(searchPath));
///     browsers.All();                                    // {{"Firefox ESR", "/usr/lib/firefox-esr/firefox-esr"}, ...}
///     browsers.FileDescription(u"/usr/bin/firefox-esr")  // "Firefox ESR"
class WebBrowsers {
  public:
    WebBrowsers(const Texts& applicationFolders, const ProgramSearch& search);

    /// The browsers that are declared and are there, in the order of their names; each program once. One that needs a
    /// terminal isn't among them.
    [[nodiscard]] const std::vector<WebBrowser>& All() const noexcept { return browsers_; }

    /// What the program with that path is called: the `Name` of a desktop file that starts this program, or else one of
    /// the same file name, a browser's rather than any other's; without one, the name of the file.
    [[nodiscard]] Text FileDescription(TextView path) const;

  private:
    void Take(const DesktopEntry& entry, const ProgramSearch& search);

    std::vector<WebBrowser> browsers_;
    /// Programs that aren't browsers, but have a name.
    std::vector<WebBrowser> others_;
};

}  // namespace tintora
