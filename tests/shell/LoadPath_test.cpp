#include "linking/HtmlStyle.h"
#include "linking/TextFiles.h"
#include "model/ktStyleSheet.h"
#include "shell/CommandLine.h"
#include "text/Encoding.h"
#include "text/Narrowing.h"

#include <gtest/gtest.h>

// A file that the command line names, on its way to a cached list of statements, with no window system.

namespace tintora {
namespace {

class TextWindow final : public StyleSheetTextSource {
  public:
    [[nodiscard]] Text GetText() const override { return text_; }
    void LoadContent(TextView file) override { text_ = ExtractStyleSheetText(ReadTextFile(file)); }

  private:
    Text text_;
};

Texts SelectorsOf(const std::string& sample) {
    TextWindow window;
    ktStyleSheet sheet;
    sheet.setWindow(&window);
    sheet.OpenStyleSheet(AbsolutePath(GetCommandLineFile({TextFromUtf8(TINTORA_SAMPLES "/" + sample)})));
    sheet.CacheStatements();
    return sheet.GetAllSelectorsAsText();
}

TEST(LoadPath, AStyleSheetEndsAsItsStatements) {
    const Texts selectors = SelectorsOf("site/style.css");
    ASSERT_GT(selectors.size(), 20U);
    EXPECT_EQ(selectors[0], u"@import");
    EXPECT_EQ(selectors[2], u"body");
}

TEST(LoadPath, APageEndsAsTheStatementsOfItsStyleElement) {
    const Texts selectors = SelectorsOf("site/embedded.html");
    ASSERT_GT(selectors.size(), 3U);
    EXPECT_EQ(selectors[0], u"<!--");
    EXPECT_EQ(selectors[1], u"body");
    EXPECT_EQ(selectors.back(), u"-->");
}

TEST(LoadPath, APageWithNoStyleSheetIsEmpty) { EXPECT_TRUE(SelectorsOf("site/index.html").empty()); }

TEST(LoadPath, AMissingFileIsEmpty) { EXPECT_TRUE(SelectorsOf("nowhere.css").empty()); }

}  // namespace
}  // namespace tintora
