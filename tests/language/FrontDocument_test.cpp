#include "language/FrontDocument.h"

#include "language/FakeFrontDocument.h"

#include <gtest/gtest.h>

namespace tintora {
namespace {

TEST(FrontDocument, WithoutADocumentTheListsAreEmpty) {
    EXPECT_EQ(GetCurrentColorList(nullptr), Texts());
    EXPECT_EQ(GetCurrentFontList(nullptr), Texts());
    EXPECT_EQ(GetCurrentURLList(nullptr), Texts());
}

TEST(FrontDocument, TheListsAreThoseOfTheDocument) {
    FakeFrontDocument front;
    front.colors = {u"red", u"#FFF", u"red"};
    front.fonts = {u"Verdana, sans-serif"};
    front.urls = {u"url(a.png)", u""};
    EXPECT_EQ(GetCurrentColorList(&front), front.colors);
    EXPECT_EQ(GetCurrentFontList(&front), front.fonts);
    EXPECT_EQ(GetCurrentURLList(&front), front.urls);
}

TEST(FrontDocument, AnEmptyDocumentHasEmptyLists) {
    const FakeFrontDocument front;
    EXPECT_EQ(GetCurrentColorList(&front), Texts());
    EXPECT_EQ(GetCurrentFontList(&front), Texts());
    EXPECT_EQ(GetCurrentURLList(&front), Texts());
}

}  // namespace
}  // namespace tintora
