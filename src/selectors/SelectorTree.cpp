#include "selectors/SelectorTree.h"

#include "linking/LiteralSearch.h"
#include "model/SelectorText.h"

#include <algorithm>
#include <string>

namespace tintora {

namespace {

constexpr TextView KeyEndAtTop = u"Statement";
constexpr TextView KeyEndInBlock = u"statement";

/// The text of an `@media` statement, asked for one statement after another whether it occurs in it.
class MediaText {
  public:
    MediaText() = default;

    /// `text` must outlive the questions.
    explicit MediaText(TextView text) : text_(text) {}

    [[nodiscard]] bool Holds(TextView statement) {
        if (statement.empty())
            return true;
        // Statements come in their order, so that what is asked for mostly stands right behind what was found last.
        const LiteralSearch search(statement);
        const std::size_t found = search.Find(text_, behindLast_);
        if (found != TextView::npos) {
            behindLast_ = found + statement.size();
            return true;
        }
        return search.Find(text_.substr(0, behindLast_ + statement.size() - 1), 0) != TextView::npos;
    }

  private:
    TextView text_;
    std::size_t behindLast_ = 0;
};

}  // namespace

void SelectorTree::SetSelectors(const Texts& statements) {
    std::vector<SelectorNode> nodes;
    nodes.reserve(statements.size());
    int openBlock = 0;
    MediaText openText;
    for (const Text& statement : statements) {
        const int number = static_cast<int>(nodes.size()) + 1;
        Text selector = ExtractSelector(statement);
        const int type = GetSelectorType(selector);
        if (IsMediaSelector(selector)) {
            nodes.push_back({number, 0, type, std::move(selector)});
            openBlock = number;
            openText = MediaText(statement);
            continue;
        }
        if (openBlock != 0 && !openText.Holds(statement))
            openBlock = 0;
        nodes.push_back({number, openBlock, type, std::move(selector)});
    }
    nodes_ = std::move(nodes);
}

const SelectorNode* SelectorTree::FindNode(int number) const noexcept {
    const bool exists = number >= 1 && number <= static_cast<int>(nodes_.size());
    return exists ? &nodes_[static_cast<std::size_t>(number - 1)] : nullptr;
}

void SelectorTree::Rename(int number, TextView selector) {
    if (FindNode(number) == nullptr)
        return;
    SelectorNode& node = nodes_[static_cast<std::size_t>(number - 1)];
    node.text = selector;
    node.type = GetSelectorType(selector);
}

bool IsMediaSelector(TextView selector) noexcept { return selector.find(u"@media") != TextView::npos; }

Text KeyOf(const SelectorNode& node) {
    const std::string digits = std::to_string(node.number);
    return Text(digits.begin(), digits.end()).append(node.parent == 0 ? KeyEndAtTop : KeyEndInBlock);
}

int NumberOfKey(TextView key) noexcept {
    constexpr std::size_t MostDigits = 9;
    const auto isDigit = [](char16_t unit) { return unit >= u'0' && unit <= u'9'; };
    const auto end = std::find_if_not(key.begin(), key.end(), isDigit);
    const TextView digits(key.begin(), end);
    const TextView rest = key.substr(digits.size());
    if (digits.size() > MostDigits || (rest != KeyEndAtTop && rest != KeyEndInBlock))
        return 0;
    int number = 0;
    for (const char16_t digit : digits)
        number = number * 10 + (digit - u'0');
    return number;
}

}  // namespace tintora
