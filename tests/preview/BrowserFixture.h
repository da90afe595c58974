#pragma once

#include "preview/BrowserLocations.h"
#include "preview/PreviewFixture.h"
#include "preview/WebBrowsers.h"

namespace tintora::test {

/// A test with programs and desktop files of its own.
class BrowserTest : public PreviewTest {
  protected:
    /// Makes a file that may be run.
    Text MakeProgram(std::string_view name) const {
        Text path = files_.Write(name, "#!/bin/sh\n");
        std::filesystem::permissions(files_.FilePath(name), std::filesystem::perms(0755));
        return path;
    }

    [[nodiscard]] BrowserLocations Locations() { return {store_, ProgramSearch(PathOf("bin"))}; }
    [[nodiscard]] WebBrowsers Browsers() const { return {{PathOf("share")}, ProgramSearch(PathOf("bin"))}; }

    /// Makes a desktop file. `keys` are lines, beside those that make it a web browser's.
    void Declare(std::string_view name, std::string_view keys) const {
        static_cast<void>(files_.Write(
            name, "[Desktop Entry]\nType=Application\nCategories=Network;WebBrowser;\n" + std::string(keys) + "\n"));
    }
};

}  // namespace tintora::test
