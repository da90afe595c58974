#include "preview/Programs.h"

#include "preview/BrowserFixture.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

namespace fs = std::filesystem;

class ProgramsTest : public test::BrowserTest {};

TEST_F(ProgramsTest, AreFilesThatMayBeRun) {
    EXPECT_TRUE(IsProgram(MakeProgram("bin/a b")));
    EXPECT_FALSE(IsProgram(files_.Write("bin/text", "x")));
    EXPECT_FALSE(IsProgram(PathOf("bin")));
    EXPECT_FALSE(IsProgram(PathOf("bin/missing")));
    EXPECT_FALSE(IsProgram(u""));
    EXPECT_FALSE(IsProgram(PathOf("bin/a b") + Text(1, u'\0')));
}

TEST_F(ProgramsTest, AreFoundInTheFirstFolderThatHasThem) {
    static_cast<void>(MakeProgram("one/first"));
    static_cast<void>(MakeProgram("two/first"));
    static_cast<void>(MakeProgram("two/second"));
    static_cast<void>(files_.Write("one/second", "no program"));
    const ProgramSearch search(u":relative:" + PathOf("missing") + u"::" + PathOf("one") + u":" + PathOf("two") +
                               u"/:.");
    EXPECT_EQ(search.Find(u"first"), PathOf("one/first"));
    EXPECT_EQ(search.Find(u"second"), PathOf("two/second"));
    EXPECT_EQ(search.Find(u"third"), u"");
    EXPECT_EQ(search.Find(u""), u"");
    EXPECT_EQ(search.Find(PathOf("two/first")), PathOf("two/first")) << "a path is its own place";
    EXPECT_EQ(search.Find(PathOf("one/second")), u"");
    EXPECT_EQ(search.Find(u"../one/first"), u"");
    const std::vector<TextView> names = {u"third", u"second", u"first"};
    EXPECT_EQ(search.FindFirst(names), PathOf("two/second"));
    EXPECT_EQ(search.FindFirst({}), u"");
    EXPECT_EQ(ProgramSearch(u"").Find(u"first"), u"");
}

TEST_F(ProgramsTest, AreOneByTheirPathOrByALinkThatLeadsToOne) {
    const Text program = MakeProgram("lib/firefox");
    fs::create_symlink(FileNameFromText(program), files_.FilePath("link"));
    fs::create_symlink(files_.FilePath("link"), files_.FilePath("chain"));
    fs::create_directory_symlink(files_.FilePath("lib"), files_.FilePath("folder"));
    EXPECT_TRUE(IsSameProgram(program, program));
    EXPECT_TRUE(IsSameProgram(program, PathOf("lib/../lib//firefox")));
    EXPECT_TRUE(IsSameProgram(program, PathOf("chain")));
    EXPECT_TRUE(IsSameProgram(PathOf("link"), program));
    EXPECT_TRUE(IsSameProgram(PathOf("folder/firefox"), program));
    EXPECT_TRUE(IsSameProgram(u"/missing", u"/./missing"));
    EXPECT_FALSE(IsSameProgram(u"/missing", program));
    EXPECT_FALSE(IsSameProgram(program, u"/missing"));
    EXPECT_FALSE(IsSameProgram(PathOf("link"), PathOf("chain")))
        << "a program that does what its name says is another under each name";
}

}  // namespace
}  // namespace tintora
