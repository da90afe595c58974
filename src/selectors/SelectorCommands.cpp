#include "selectors/SelectorCommands.h"

#include "selectors/FrontStyleSheet.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

using enum StatementCommand;

// Some keys have "New" in them and some don't: that is how the program calls them.
constexpr auto Items = std::to_array<SelectorItem>({
    {u"miSNew", NewStatement, u""},
    {u"miSNewStatement", NewStatement, u""},
    {u"mitbSNewTypeSelector", NewStatement, u"Type"},
    {u"mitbSNewLinkSelector", NewStatement, u"Link"},
    {u"mitbSNewClassSelector", NewStatement, u"Class"},
    {u"mitbSNewIDSelector", NewStatement, u"ID"},
    {u"mitbSNewGroupSelector", NewStatement, u"Group"},
    {u"mitbSNewDescendantSelector", NewStatement, u"Descendant"},
    {u"mitbSNewDynamicSelector", NewStatement, u"Dynamic"},
    {u"mitbSNewLanguageSelector", NewStatement, u"Language"},
    {u"mitbSNewTypographicalSelector", NewStatement, u"Typographical"},
    {u"mitbSNewGeneratedContentSelector", NewStatement, u"Generated Content"},
    {u"mitbSNewFirstChildSelector", NewStatement, u"First Child"},
    {u"mitbSNewChildSelector", NewStatement, u"Child"},
    {u"mitbSAdjacentSiblingSelector", NewStatement, u"Adjacent Sibling"},
    {u"mitbSAttributeSelector", NewStatement, u"Attribute"},
    {u"miSNewComment", NewComment, u""},
    {u"mitbSAllLinkSelectors", NewStatement, u"All Link States"},
    {u"mitbSAllBasicTextSelectors", NewStatement, u"All Basic Text"},
    {u"mitbSAllHeadingSelectors", NewStatement, u"All Heading Levels"},
    {u"mitbSAllTableSelectors", NewStatement, u"All Table"},
    {u"mitbSAllFormSelectors", NewStatement, u"All Form"},
    {u"miSEdit", EditStatement, u""},
    {u"miSDuplicate", DuplicateStatement, u""},
    {u"miSRemove", DeleteStatement, u""},
});

}  // namespace

std::span<const SelectorItem> SelectorItems() noexcept { return Items; }

void RunSelectorItem(TextView key, FrontStyleSheet* document) {
    const auto* const item =
        std::find_if(Items.begin(), Items.end(), [=](const SelectorItem& row) { return row.key == key; });
    if (document == nullptr || item == Items.end())
        return;
    switch (item->command) {
        case NewStatement: document->NewStatement(item->kind); break;
        case NewComment: document->NewComment(); break;
        case EditStatement: document->EditStatement(); break;
        case DuplicateStatement: document->DuplicateStatement(); break;
        case DeleteStatement: document->DeleteStatement(); break;
    }
}

}  // namespace tintora
