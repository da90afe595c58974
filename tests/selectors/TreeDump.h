#pragma once

#include "model/ktStyleSheet.h"
#include "selectors/SelectorTree.h"
#include "text/Encoding.h"

#include <string>

namespace tintora::test {

/// The nodes of a tree by their keys and texts, a child with the key of its parent behind "<":
/// "1Statement @media print | 2statement<1Statement a".
inline std::string Dump(const SelectorTree& tree) {
    Text dump;
    for (const SelectorNode& node : tree.Nodes()) {
        dump.append(dump.empty() ? u"" : u" | ").append(KeyOf(node));
        if (const SelectorNode* const parent = tree.FindNode(node.parent))
            dump.append(u"<").append(KeyOf(*parent));
        dump.append(u" ").append(node.text);
    }
    return Utf8FromText(dump);
}

/// The statements of a style sheet, as its window hands them to the palette.
inline Texts StatementsOf(TextView css) {
    ktStyleSheet sheet;
    if (!css.empty())
        sheet.CacheStatements(css);
    return sheet.GetAllStatementsAsText();
}

inline SelectorTree TreeOf(TextView css) {
    SelectorTree tree;
    tree.SetSelectors(StatementsOf(css));
    return tree;
}

}  // namespace tintora::test
