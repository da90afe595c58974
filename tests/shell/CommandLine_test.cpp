#include "shell/CommandLine.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>
#include <unistd.h>
#include <filesystem>
#include <fstream>

namespace tintora {
namespace {

struct LineCase {
    Texts arguments;
    Text file;
};

const std::vector<LineCase> Lines = {
    {{}, u""},
    {{u"a.css"}, u"a.css"},
    {{u"my styles.css"}, u"my styles.css"},
    {{u"my", u"styles.css"}, u"my styles.css"},
    {{u"a.css", u"b.css"}, u"a.css b.css"},
    {{u"\"a b.css\""}, u"a b.css"},
    {{u"\"a", u"b.css\""}, u"a b.css"},
    {{u"\"a.css"}, u"a.css"},
    {{u"a.css\""}, u"a.css"},
    {{u"\""}, u""},
    {{u"\"\""}, u""},
    {{u"--help", u"a.css"}, u"--help a.css"},
};

TEST(CommandLine, TheWholeLineIsOnePath) {
    for (const LineCase& row : Lines)
        EXPECT_EQ(GetCommandLineFile(row.arguments), row.file);
}

TEST(CommandLine, ARelativePathIsSeenFromTheWorkingFolder) {
    const Text here = TextFromFileName(std::filesystem::current_path().native());
    EXPECT_EQ(AbsolutePath(u"a.css"), here + u"/a.css");
    EXPECT_EQ(AbsolutePath(u"./x/../a b.css"), here + u"/a b.css");
    EXPECT_EQ(AbsolutePath(u"/site/../a.css"), u"/a.css");
    EXPECT_EQ(AbsolutePath(u""), u"") << "no file stays none";
    EXPECT_EQ(AbsolutePath(u"\xdcff.css"), here + u"/\xdcff.css") << "a name that isn't UTF-8 is kept";
}

TEST(CommandLine, HelpAndVersionAreAskedForAlone) {
    EXPECT_EQ(GetCommandLineRequest({}), CommandLineRequest::OpenFile);
    EXPECT_EQ(GetCommandLineRequest({u"a.css"}), CommandLineRequest::OpenFile);
    EXPECT_EQ(GetCommandLineRequest({u"--help"}), CommandLineRequest::ShowHelp);
    EXPECT_EQ(GetCommandLineRequest({u"--version"}), CommandLineRequest::ShowVersion);
    EXPECT_EQ(GetCommandLineRequest({u"--help", u"a.css"}), CommandLineRequest::OpenFile);
}

TEST(CommandLine, AFileOfThatNameIsOpened) {
    const auto folder = std::filesystem::temp_directory_path() / ("tintora-line-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(folder);
    std::ofstream("--help") << "a {}";
    EXPECT_EQ(GetCommandLineRequest({u"--help"}), CommandLineRequest::OpenFile);
    EXPECT_EQ(GetCommandLineRequest({u"--version"}), CommandLineRequest::ShowVersion);
    std::filesystem::current_path(previous);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tintora
