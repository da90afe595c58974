#include "settings/FileAssociation.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace tintora {
namespace {

struct ChoiceCase {
    std::string_view what;
    Text before;
    Text after;
    bool isDefault;
};

/// What stands before and after this program's own name in the desktop's choice.
const std::vector<ChoiceCase> ChoiceCases = {
    {"the name", u"", u"", true},
    {"the name and a line end", u"", u"\n", true},
    {"the name and blanks", u"", u" \t\r\n", true},
    {"another name that ends so", u"not-", u"", false},
    {"another name that begins so", u"", u".backup", false},
    {"the name in quotes", u"\"", u"\"", false},
    {"a path", u"/usr/share/applications/", u"", false},
    {"two names", u"", u";other.desktop", false},
    {"a no-break space behind it", u"", u"\xA0", false},
    {"a lone surrogate behind it", u"", u"\xD800", false},
    {"NUL behind it", u"", Text(1, u'\0'), false},
};

class FakeDesktop final : public DesktopAssociations {
  public:
    [[nodiscard]] std::optional<Text> QueryDefault(TextView mimeType) const override {
        if (!keepsChoices)
            return std::nullopt;
        const auto found = choices.find(mimeType);
        return found == choices.end() ? Text() : found->second;
    }

    void SetDefault(TextView mimeType, TextView desktopFile) override {
        ++changes;
        if (keepsChoices && acceptsChanges)
            choices.insert_or_assign(Text(mimeType), Text(desktopFile));
    }

    std::map<Text, Text, std::less<>> choices;
    bool keepsChoices = true;
    bool acceptsChanges = true;
    int changes = 0;
};

TEST(FileAssociation, WhereNothingIsChosenThisProgramIsNotTheDefault) {
    const FakeDesktop desktop;
    EXPECT_FALSE(IsDefaultCSSEditor(desktop));
}

TEST(FileAssociation, WhereTheDesktopKeepsNoChoiceNothingIsAsked) {
    FakeDesktop desktop;
    desktop.keepsChoices = false;
    EXPECT_TRUE(IsDefaultCSSEditor(desktop));
    MakeDefaultCSSEditor(desktop);
    EXPECT_TRUE(IsDefaultCSSEditor(desktop));
}

TEST(FileAssociation, OnceMadeTheDefaultItIs) {
    FakeDesktop desktop;
    desktop.choices[u"text/css"] = u"other.desktop";
    EXPECT_FALSE(IsDefaultCSSEditor(desktop));
    MakeDefaultCSSEditor(desktop);
    EXPECT_TRUE(IsDefaultCSSEditor(desktop));
    EXPECT_EQ(desktop.changes, 1);
}

TEST(FileAssociation, OnlyStyleSheetsAreTaken) {
    FakeDesktop desktop;
    desktop.choices[u"text/html"] = u"browser.desktop";
    MakeDefaultCSSEditor(desktop);
    EXPECT_EQ(desktop.choices.size(), 2U);
    EXPECT_EQ(desktop.choices[u"text/html"], u"browser.desktop");
    EXPECT_TRUE(desktop.choices[u"text/css"].ends_with(u".desktop"));
}

TEST(FileAssociation, AskingChangesNothing) {
    const FakeDesktop desktop;
    static_cast<void>(IsDefaultCSSEditor(desktop));
    EXPECT_EQ(desktop.changes, 0);
}

TEST(FileAssociation, AFailureIsNotReported) {
    FakeDesktop desktop;
    desktop.acceptsChanges = false;
    EXPECT_NO_THROW(MakeDefaultCSSEditor(desktop));
    EXPECT_FALSE(IsDefaultCSSEditor(desktop));
}

TEST(FileAssociation, TheChoiceIsComparedExactly) {
    FakeDesktop desktop;
    MakeDefaultCSSEditor(desktop);
    const Text own = desktop.choices[u"text/css"];
    for (const ChoiceCase& row : ChoiceCases) {
        desktop.choices[u"text/css"] = row.before + own + row.after;
        EXPECT_EQ(IsDefaultCSSEditor(desktop), row.isDefault) << row.what;
    }
}

TEST(FileAssociation, LetterCaseCounts) {
    FakeDesktop desktop;
    MakeDefaultCSSEditor(desktop);
    char16_t& first = desktop.choices[u"text/css"].front();
    first = static_cast<char16_t>(first - 32);
    EXPECT_FALSE(IsDefaultCSSEditor(desktop));
}

}  // namespace
}  // namespace tintora
