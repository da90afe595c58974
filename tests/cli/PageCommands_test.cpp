#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

// The commands that write pages, as their users call them, on pages in a folder that goes when the test ends.

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Head = "<head>\n</head>\n";

struct Answer {
    int status = -1;
    std::string output;
    std::string errors;
};

class PageCommands : public testing::Test {
  protected:
    PageCommands() {
        std::string name = (fs::temp_directory_path() / "tintora-cli-XXXXXX").string();
        root_ = ::mkdtemp(name.data());
        fs::create_directory(folder_ = root_ / "it's the folder");
    }
    ~PageCommands() override { fs::remove_all(root_); }

    void Write(const std::string& name, std::string_view bytes) const {
        fs::create_directories((folder_ / name).parent_path());
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
    }

    [[nodiscard]] std::string Read(const std::string& name) const { return ContentOf(folder_ / name); }

    /// Runs the tool in the folder with arguments as a shell reads them.
    [[nodiscard]] Answer Run(const std::string& arguments) const {
        ::setenv("TINTORA_TEST_FOLDER", folder_.c_str(), 1);
        const std::string line = "cd \"$TINTORA_TEST_FOLDER\" && '" TINTORA_TOOL "' " + arguments + " >'" +
                                 (root_ / "output").string() + "' 2>'" + (root_ / "errors").string() + "'";
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(root_ / "output"), ContentOf(root_ / "errors")};
    }

    /// Expects the tool to end well, to print `output`, and to say nothing else.
    void RunWell(const std::string& arguments, const std::string& output) const {
        const Answer answer = Run(arguments);
        EXPECT_EQ(answer.status, 0);
        EXPECT_EQ(answer.output, output);
        EXPECT_EQ(answer.errors, "");
    }

    [[nodiscard]] fs::path Folder() const { return folder_; }

  private:
    static std::string ContentOf(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    fs::path root_;
    fs::path folder_;
};

std::string Changed(const std::string& page, bool changed = true) {
    return R"({"page":")" + page + R"(","changed":)" + (changed ? "true" : "false") + "}\n";
}

std::string Linked(const std::string& href, const std::string& extras = "", const std::string& rel = "stylesheet") {
    return "<head>\n<link rel=\"" + rel + "\" type=\"text/css\" href=\"" + href + "\" " + extras + " />  </head>\n";
}

std::string Embedded(const std::string& css, const std::string& attributes = "") {
    return "<head>\n<style type=\"text/css\" " + attributes + ">" + css + "</style>  </head>\n";
}

TEST_F(PageCommands, LinkTellsForEachPageWhetherItHasChanged) {
    Write("a.html", Head);
    Write("b.html", "no head");
    RunWell("link a.html b.html a.html --sheet main.css",
            Changed("a.html") + Changed("b.html", false) + Changed("a.html", false));
    EXPECT_EQ(Read("a.html"), Linked("main.css"));
    EXPECT_EQ(Read("b.html"), "no head");
}

TEST_F(PageCommands, LinkLeadsFromEachPageToTheSheet) {
    Write("a.html", Head);
    Write("x/y/b.html", Head);
    Write("css/c.html", Head);
    RunWell("link a.html x/y/b.html ./x/../css/c.html --sheet css/main.css",
            Changed("a.html") + Changed("x/y/b.html") + Changed("./x/../css/c.html"));
    EXPECT_EQ(Read("a.html"), Linked("css/main.css"));
    EXPECT_EQ(Read("x/y/b.html"), Linked("../../css/main.css"));
    EXPECT_EQ(Read("css/c.html"), Linked("main.css"));
}

TEST_F(PageCommands, LinkTakesAbsolutePaths) {
    Write("a/a.html", Head);
    const std::string folder = Folder().string();
    RunWell("link \"" + folder + "/a/a.html\" --sheet \"" + folder + "/main.css\"", Changed(folder + "/a/a.html"));
    EXPECT_EQ(Read("a/a.html"), Linked("../main.css"));
}

TEST_F(PageCommands, LinkTakesAFolderForAllItsPages) {
    Write("site/z.html", Head);
    Write("site/b/c.HTM", Head);
    Write("site/a/d.html", Head);
    Write("site/a/e.txt", Head);
    Write("site/main.css", Head);
    Write("empty/x.css", "");
    const std::string pages = Changed("site/z.html") + Changed("site/a/d.html") + Changed("site/b/c.HTM");
    RunWell("link site empty --sheet site/main.css", pages);
    EXPECT_EQ(Read("site/z.html"), Linked("main.css"));
    EXPECT_EQ(Read("site/a/d.html"), Linked("../main.css"));
    EXPECT_EQ(Read("site/a/e.txt"), Head);
    EXPECT_EQ(Read("site/main.css"), Head);
    RunWell("link site/b/ . --sheet main.css", Changed("site/b/c.HTM") + Changed("./site/z.html") +
                                                   Changed("./site/a/d.html") + Changed("./site/b/c.HTM", false));
    EXPECT_EQ(Read("site/b/c.HTM"), Linked("../../main.css"));
}

TEST_F(PageCommands, LinkTakesRelTitleAndMedia) {
    Write("a.html", Head);
    RunWell("link a.html --sheet m.css --rel 'alternate stylesheet' --title 'Large é' --media 'print, tv'",
            Changed("a.html"));
    EXPECT_EQ(Read("a.html"), Linked("m.css", "title=\"Large é\" media=\"print, tv\"", "alternate stylesheet"));
    Write("a.html", Head);
    RunWell("link --title Large a.html --sheet=m.css", Changed("a.html"));
    EXPECT_EQ(Read("a.html"), Linked("m.css", "title=\"Large\" "));
    Write("a.html", Head);
    RunWell("link a.html --sheet m.css --rel '' --title '' --media '\"print\"'", Changed("a.html"));
    EXPECT_EQ(Read("a.html"), Linked("m.css", "media=\"print\"", ""));
}

TEST_F(PageCommands, LinkTakesOddNames) {
    Write("a b #%20/-\"q\" é.html", Head);
    Write("-x.html", Head);
    Write("\xFF.html", Head);
    Write("[y]/z.html", Head);
    RunWell(
        "link 'a b #%20/-\"q\" é.html' -x.html $(printf '\\377').html '[y]' --sheet 'ä #.css'",
        Changed("a b #%20/-\\\"q\\\" é.html") + Changed("-x.html") + Changed("\\udcff.html") + Changed("[y]/z.html"));
    EXPECT_EQ(Read("a b #%20/-\"q\" é.html"), Linked("../ä #.css"));
    EXPECT_EQ(Read("-x.html"), Linked("ä #.css"));
    EXPECT_EQ(Read("\xFF.html"), Linked("ä #.css"));
    EXPECT_EQ(Read("[y]/z.html"), Linked("../ä #.css"));
}

TEST_F(PageCommands, APageThatFailsIsNamedAndTheOthersAreDone) {
    Write("1 late.html", std::string(40000, ' ') + "</head>");
    Write("2 read only.html", Head);
    ::chmod((Folder() / "2 read only.html").c_str(), 0444);
    Write("3 unclosed.html", "</head><link rel=\"stylesheet\"");
    Write("4 legacy.html", "</head>\xE9");
    Write("5 good.html", Head);
    const Answer answer = Run("link missing.html . --sheet 中.css");
    EXPECT_EQ(answer.status, 2);
    EXPECT_EQ(answer.output, Changed("./5 good.html"));
    EXPECT_EQ(answer.errors,
              "tintora-cli: missing.html: No such file or directory\n"
              "tintora-cli: ./1 late.html: its head is longer than 32767 characters\n"
              "tintora-cli: ./2 read only.html: The file can't be saved because it is a read only file.\n"
              "tintora-cli: ./3 unclosed.html: the link element doesn't end\n"
              "tintora-cli: ./4 legacy.html: The file's encoding has no bytes for one of the characters\n");
    EXPECT_EQ(Read("2 read only.html"), Head);
    EXPECT_EQ(Read("4 legacy.html"), "</head>\xE9");
    EXPECT_EQ(Read("5 good.html"), Linked("中.css"));
}

TEST_F(PageCommands, APageBeyondTheLimitOfTheProcessStays) {
    const std::string large = std::string(Head) + std::string(100'000, ' ');
    Write("a.html", large);
    Write("b.html", Head);
    rlimit old{};
    ::getrlimit(RLIMIT_FSIZE, &old);
    const rlimit limit{50'000, old.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const Answer answer = Run("link . --sheet main.css");
    ::setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ(answer.status, 2);
    EXPECT_EQ(answer.output, Changed("./b.html"));
    EXPECT_EQ(answer.errors, "tintora-cli: ./a.html: File too large\n");
    EXPECT_EQ(Read("a.html"), large);
}

TEST_F(PageCommands, EmbedPutsTheSheetIntoEachPage) {
    Write("site/a.html", Head);
    Write("site/b/b.html", "<STYLE>old</STYLE>\r\n");
    Write("c.html", "<html></html>");
    Write("main.css", "a {\r\n}\r\n");
    RunWell("embed site c.html --sheet main.css",
            Changed("site/a.html") + Changed("site/b/b.html") + Changed("c.html", false));
    EXPECT_EQ(Read("site/a.html"), Embedded("a {\r\n}\r\n"));
    EXPECT_EQ(Read("site/b/b.html"), "<style type=\"text/css\" >a {\r\n}\r\n</style>\r\n");
    RunWell("embed site/a.html --sheet main.css", Changed("site/a.html", false));
    RunWell("embed site/a.html --sheet main.css --media 'print, screen'", Changed("site/a.html"));
    EXPECT_EQ(Read("site/a.html"), Embedded("a {\r\n}\r\n", "media=\"print, screen\""));
}

TEST_F(PageCommands, EmbedTakesTheSheetOfAPageOrOfStandardInput) {
    Write("a.html", Head);
    Write("other.html", "<html><style>b{}</style></html>");
    RunWell("embed a.html --sheet other.html", Changed("a.html"));
    EXPECT_EQ(Read("a.html"), Embedded("b{}"));
    Write("input.css", "c{}");
    RunWell("embed a.html --sheet - <input.css", Changed("a.html"));
    EXPECT_EQ(Read("a.html"), Embedded("c{}"));
}

TEST_F(PageCommands, EmbedStopsAtASheetThatCannotBeRead) {
    Write("a.html", Head);
    Write("large.css", std::string(32768, ' '));
    const Answer answer = Run("embed a.html --sheet large.css");
    EXPECT_EQ(answer.status, 2);
    EXPECT_EQ(answer.output, "");
    EXPECT_EQ(answer.errors, "tintora-cli: large.css: 32768 characters; a style sheet holds at most 32767\n");
    EXPECT_EQ(Run("embed a.html --sheet .").errors, "tintora-cli: .: Is a directory\n");
    EXPECT_EQ(Read("a.html"), Head);
}

TEST_F(PageCommands, LinkedAnswersForAPageThatHasBeenLinked) {
    Write("site/pages/a.html", Head);
    const std::string page = "\"$PWD\"/site/pages/a.html";
    RunWell("link " + page + " --sheet site/css/main.css", Changed((Folder() / "site/pages/a.html").string()));
    RunWell("linked " + page, (Folder() / "site/css/main.css").string());
}

}  // namespace
