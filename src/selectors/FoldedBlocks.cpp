#include "selectors/FoldedBlocks.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

namespace tintora {

namespace {

/// The text of a block, and how many blocks in front of it have the same.
using BlockName = std::pair<TextView, int>;

/// The numbers of the blocks by their names.
std::map<BlockName, int> BlocksOf(const SelectorTree& tree) {
    std::map<BlockName, int> blocks;
    std::unordered_map<TextView, int> counts;
    for (const SelectorNode& node : tree.Nodes()) {
        if (IsMediaSelector(node.text))
            blocks.emplace(BlockName(node.text, counts[node.text]++), node.number);
    }
    return blocks;
}

}  // namespace

std::vector<int> FindBlocksAgain(const SelectorTree& before, const std::vector<int>& folded, const SelectorTree& now) {
    std::vector<int> found;
    if (folded.empty())
        return found;
    std::vector<int> wanted = folded;
    std::sort(wanted.begin(), wanted.end());
    const std::map<BlockName, int> blocks = BlocksOf(now);
    for (const auto& [name, number] : BlocksOf(before)) {
        const auto again = blocks.find(name);
        if (again != blocks.end() && std::binary_search(wanted.begin(), wanted.end(), number))
            found.push_back(again->second);
    }
    std::sort(found.begin(), found.end());
    return found;
}

}  // namespace tintora
