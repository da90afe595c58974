#include "language/HelpPages.h"

#include "linking/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace tintora {
namespace {

struct PageRow {
    int number;
    TextView page;
};

constexpr auto Pages = std::to_array<PageRow>({
    {0, u"index.html"},
    {1, u"@import.html"},
    {2, u"@media.html"},
    {4, u"comments.html"},
    {5, u"type_selector.html"},
    {6, u"link_selector.html"},
    {7, u"class_selector.html"},
    {8, u"id_selector.html"},
    {9, u"descendent_selector.html"},
    {10, u"group_selector.html"},
    {11, u"dynamic_selector.html"},
    {12, u"language_selector.html"},
    {13, u"typographical_selector.html"},
    {14, u"generated_content_selector.html"},
    {15, u"first_child_selector.html"},
    {16, u"child_selector.html"},
    {17, u"adjacent_sibling_selector.html"},
    {18, u"attribute_selector.html"},
    {1000, u"generic.html"},
    {1001, u"font-size.html"},
    {1019, u"margin.html"},
    {1051, u"clear.html"},
    {1052, u"border.html"},
    {1053, u"border.html"},
    {1060, u"border.html"},
    {1070, u"border.html"},
    {1071, u"border.html"},
    {1072, u"cursor.html"},
    {1073, u"outline.html"},
    {1076, u"outline.html"},
    {1077, u"page-break-before.html"},
    {1083, u"margin.html"},
    {1087, u"margin-right.html"},
    {1098, u"table-layout.html"},
    {1106, u"content.html"},
    {1107, u"generic.html"},
});

constexpr auto NumbersWithoutPage = std::to_array<int>({3, 19, 500, 998, 999, -1, std::numeric_limits<int>::min()});

constexpr std::string_view InfoFolder = "Help_Files/Info/";
constexpr std::string_view CompatabilityFolder = "Help_Files/Compatability/";

TEST(HelpPages, AFeatureHasThePageOfItsTypeOrProperty) {
    for (const PageRow& row : Pages)
        EXPECT_EQ(HelpPageName(row.number), row.page) << row.number;
}

TEST(HelpPages, AllBordersShareAPageAndAllOutlinesDo) {
    for (int number = 1052; number <= 1071; ++number)
        EXPECT_EQ(HelpPageName(number), u"border.html") << number;
    for (int number = 1073; number <= 1076; ++number)
        EXPECT_EQ(HelpPageName(number), u"outline.html") << number;
}

TEST(HelpPages, ANumberWithoutAFeatureHasNoPage) {
    for (const int number : NumbersWithoutPage)
        EXPECT_EQ(HelpPageName(number), u"") << number;
}

TEST(HelpPages, APageThatExistsIsGiven) {
    const TemporaryFolder folder;
    const HelpPages help(folder.Path());
    for (const PageRow& row : Pages) {
        const std::string name = Utf8FromText(row.page);
        const Text info = folder.Write(std::string(InfoFolder) + name, "info");
        EXPECT_EQ(help.GetInfoPagePath(row.number), info);
        const Text compatability = folder.Write(std::string(CompatabilityFolder) + name, "");
        EXPECT_EQ(help.GetCompatabilityPagePath(row.number), compatability);
    }
}

TEST(HelpPages, APageThatDoesNotExistIsReplacedByTheIndex) {
    const TemporaryFolder folder;
    const HelpPages help(folder.Path());
    const Text info = folder.Path() + u"/Help_Files/Info/index.html";
    const Text compatability = folder.Path() + u"/Help_Files/Compatability/index.html";
    const auto expectIndexes = [&] {
        for (const PageRow& row : Pages) {
            EXPECT_EQ(help.GetInfoPagePath(row.number), info) << row.number;
            EXPECT_EQ(help.GetCompatabilityPagePath(row.number), compatability) << row.number;
        }
        for (const int number : NumbersWithoutPage) {
            EXPECT_EQ(help.GetInfoPagePath(number), info) << number;
            EXPECT_EQ(help.GetCompatabilityPagePath(number), compatability) << number;
        }
    };
    expectIndexes();
    EXPECT_EQ(folder.Write("Help_Files/Info/index.html", "index"), info);
    expectIndexes();
}

TEST(HelpPages, TheTwoFoldersAreLookedIntoApart) {
    const TemporaryFolder folder;
    const HelpPages help(folder.Path());
    const Text page = folder.Write("Help_Files/Info/color.html", "colour");
    EXPECT_EQ(help.GetInfoPagePath(1004), page);
    EXPECT_EQ(help.GetCompatabilityPagePath(1004), folder.Path() + u"/Help_Files/Compatability/index.html");
}

TEST(HelpPages, AFolderIsNoPage) {
    const TemporaryFolder folder;
    static_cast<void>(folder.Write("Help_Files/Info/color.html/file", ""));
    EXPECT_EQ(HelpPages(folder.Path()).GetInfoPagePath(1004), folder.Path() + u"/Help_Files/Info/index.html");
}

TEST(HelpPages, TheApplicationFolderMayHaveAnyName) {
    const TemporaryFolder folder;
    const Text page = folder.Write("\xFF \xC3\xA9/Help_Files/Info/color.html", "colour");
    const HelpPages help(TextFromFileName(folder.FilePath("\xFF \xC3\xA9")));
    EXPECT_EQ(help.GetInfoPagePath(1004), page);
}

}  // namespace
}  // namespace tintora
