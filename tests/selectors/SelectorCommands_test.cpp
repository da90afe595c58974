#include "selectors/SelectorCommands.h"

#include "RecordingStyleSheet.h"

#include <gtest/gtest.h>
#include <algorithm>
#include <array>

namespace tintora::test {
namespace {

struct CommandCase {
    TextView key;
    const char* call;
};

constexpr auto Commands = std::to_array<CommandCase>({
    {u"miSNew", "NewStatement []"},
    {u"miSNewStatement", "NewStatement []"},
    {u"miSEdit", "EditStatement"},
    {u"miSDuplicate", "DuplicateStatement"},
    {u"miSRemove", "DeleteStatement"},
    {u"miSNewComment", "NewComment"},
    {u"mitbSNewTypeSelector", "NewStatement [Type]"},
    {u"mitbSNewLinkSelector", "NewStatement [Link]"},
    {u"mitbSNewClassSelector", "NewStatement [Class]"},
    {u"mitbSNewIDSelector", "NewStatement [ID]"},
    {u"mitbSNewGroupSelector", "NewStatement [Group]"},
    {u"mitbSNewDescendantSelector", "NewStatement [Descendant]"},
    {u"mitbSNewDynamicSelector", "NewStatement [Dynamic]"},
    {u"mitbSNewLanguageSelector", "NewStatement [Language]"},
    {u"mitbSNewTypographicalSelector", "NewStatement [Typographical]"},
    {u"mitbSNewGeneratedContentSelector", "NewStatement [Generated Content]"},
    {u"mitbSNewFirstChildSelector", "NewStatement [First Child]"},
    {u"mitbSNewChildSelector", "NewStatement [Child]"},
    {u"mitbSAdjacentSiblingSelector", "NewStatement [Adjacent Sibling]"},
    {u"mitbSAttributeSelector", "NewStatement [Attribute]"},
    {u"mitbSAllLinkSelectors", "NewStatement [All Link States]"},
    {u"mitbSAllBasicTextSelectors", "NewStatement [All Basic Text]"},
    {u"mitbSAllHeadingSelectors", "NewStatement [All Heading Levels]"},
    {u"mitbSAllTableSelectors", "NewStatement [All Table]"},
    {u"mitbSAllFormSelectors", "NewStatement [All Form]"},
});

TEST(SelectorCommands, EachItemRunsItsCommandOnTheStyleSheetInFront) {
    RecordingStyleSheet document;
    for (const CommandCase& row : Commands) {
        RunSelectorItem(row.key, &document);
        EXPECT_EQ(document.TakeCalls(), Calls{row.call}) << Utf8FromText(row.key);
    }
}

TEST(SelectorCommands, ThereAreNoOtherItems) {
    EXPECT_EQ(SelectorItems().size(), Commands.size());
    for (const SelectorItem& item : SelectorItems()) {
        EXPECT_TRUE(std::any_of(Commands.begin(), Commands.end(), [&](const auto& row) { return row.key == item.key; }))
            << Utf8FromText(item.key);
    }
    RecordingStyleSheet document;
    for (const TextView key : {u"", u"MISEDIT", u"miSEdit ", u"miECut", u"miECopy", u"miEPaste", u"miEClear"})
        RunSelectorItem(key, &document);
    EXPECT_EQ(document.calls, Calls{});
}

TEST(SelectorCommands, WithoutAStyleSheetInFrontTheyDoNothing) {
    for (const SelectorItem& item : SelectorItems())
        RunSelectorItem(item.key, nullptr);
}

}  // namespace
}  // namespace tintora::test
