#include "shell/ManualPages.h"

#include "text/Encoding.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

struct PageCase {
    Text topic;
    Text page;
};

const std::vector<PageCase> PageCases = {
    {u"File", u"file.html"},
    {u"Edit", u"edit.html"},
    {u"Style", u"style.html"},
    {u"Statement", u"statement.html"},
    {u"Preview", u"preview.html"},
    {u"Window", u"window.html"},
    {u"HandCoding", u"hand_coding.html"},
    {u"Properties", u"properties.html"},
    {u"Palettes", u"palettes.html"},
    {u"WorkSpace", u"workspace.html"},
    {u"Options", u"options.html"},
    {u"Index", u"real_index.html"},
    {u"", u"index.html"},
    {u"index", u"index.html"},
    {u"file", u"index.html"},
    {u"File ", u"index.html"},
    {u"../../etc", u"index.html"},
};

TEST(ManualPages, EachTopicHasItsPageAndAnyOtherTheContents) {
    for (const PageCase& row : PageCases) {
        SCOPED_TRACE(Utf8FromText(row.topic));
        EXPECT_EQ(ManualPage(row.topic), row.page);
        EXPECT_EQ(ManualPagePath(row.topic), u"/Help_Files/manual/" + row.page);
    }
}

TEST(ManualPages, TheOtherPagesHaveTheirFixedPlaces) {
    EXPECT_EQ(TutorialPagePath, u"/Help_Files/tutorial/index.html");
    EXPECT_EQ(FAQPagePath, u"/Help_Files/faq.html");
    EXPECT_EQ(TipsPagePath, u"/Help_Files/tips_tricks.html");
}

}  // namespace
}  // namespace tintora
