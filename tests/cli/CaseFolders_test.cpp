#include <gtest/gtest.h>
#include <sys/wait.h>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// The tool as its users call it. A case is a folder:
//   command   the arguments, as a shell reads them; the tool runs in the folder of the case
//   input     standard input, if there is any
//   output    what it prints; it prints nothing where there is no such file
//   errors    what it says on standard error, likewise
//   status    what it ends with, 0 where there is no such file
// Any other file is there for the command.

namespace {

namespace fs = std::filesystem;

std::string ContentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class CaseFolder : public testing::TestWithParam<fs::path> {};

std::vector<fs::path> AllCases() {
    std::vector<fs::path> cases;
    for (const auto& entry : fs::directory_iterator(TINTORA_CASES))
        cases.push_back(entry.path());
    std::sort(cases.begin(), cases.end());
    return cases;
}

std::string NameOfCase(const testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.filename().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

/// A folder of its own for what the tool prints.
class OutputFolder {
  public:
    OutputFolder() {
        std::string name = (fs::temp_directory_path() / "tintora-cli-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~OutputFolder() { fs::remove_all(path_); }
    OutputFolder(const OutputFolder&) = delete;
    OutputFolder& operator=(const OutputFolder&) = delete;

    [[nodiscard]] fs::path File(const char* name) const { return path_ / name; }

  private:
    fs::path path_;
};

TEST_P(CaseFolder, PrintsWhatIsExpected) {
    const fs::path& folder = GetParam();
    const OutputFolder printed;
    std::string command = ContentOf(folder / "command");
    while (!command.empty() && command.back() == '\n')
        command.pop_back();
    const fs::path input = fs::exists(folder / "input") ? folder / "input" : fs::path("/dev/null");
    const std::string line = "cd '" + folder.string() + "' && SAMPLES='" TINTORA_SAMPLES "' && '" TINTORA_TOOL "' " +
                             command + " <'" + input.string() + "' >'" + printed.File("output").string() + "' 2>'" +
                             printed.File("errors").string() + "'";
    const int status = std::system(line.c_str());
    ASSERT_TRUE(WIFEXITED(status));
    const std::string expected = ContentOf(folder / "status");
    EXPECT_EQ(WEXITSTATUS(status), expected.empty() ? 0 : std::stoi(expected));
    EXPECT_EQ(ContentOf(printed.File("output")), ContentOf(folder / "output"));
    EXPECT_EQ(ContentOf(printed.File("errors")), ContentOf(folder / "errors"));
}

INSTANTIATE_TEST_SUITE_P(Tool, CaseFolder, testing::ValuesIn(AllCases()), NameOfCase);

}  // namespace
