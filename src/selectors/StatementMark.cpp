#include "selectors/StatementMark.h"

#include "language/FeatureNames.h"
#include "text/Whitespace.h"

namespace tintora {

StatementMark MarkOf(int selectorType, TextView selector) noexcept {
    using namespace selector_type;
    const std::size_t start = FindNonWhitespace(selector, 0);
    if (start < selector.size() && selector[start] == u'@')
        return StatementMark::AtRule;
    switch (selectorType) {
        case AtImport:
        case AtMedia:
        case AtPage: return StatementMark::AtRule;
        case Comment: return StatementMark::Comment;
        case Type: return StatementMark::Type;
        case Class: return StatementMark::Class;
        case ID: return StatementMark::ID;
        case Group: return StatementMark::Group;
        case Descendant:
        case Child:
        case AdjacentSibling: return StatementMark::Combination;
        case Link:
        case Dynamic:
        case Language:
        case Typographical:
        case GeneratedContent:
        case FirstChild: return StatementMark::PseudoClass;
        case Attribute: return StatementMark::Attribute;
        default: return StatementMark::None;
    }
}

}  // namespace tintora
