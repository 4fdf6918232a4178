#include "tools/keyboard/SnippetTrie.hpp"

#include <algorithm>
#include <map>

namespace quorvane {

SnippetTrie::SnippetTrie() : nodes_(1) {}

SnippetTrie::SnippetTrie(const std::vector<Snippet>& snippets) {
    // Built as a tree of maps first, then laid out flat: the walk per key press touches two small
    // arrays instead of chasing map nodes.
    struct Building {
        std::map<char32_t, std::uint32_t> children;
        std::uint32_t snippet = kNone;
    };
    std::vector<Building> tree(1);
    for (std::size_t index = 0; index < snippets.size(); ++index) {
        if (!snippets[index].isUsable()) {
            continue;
        }
        std::vector<char32_t> trigger;
        Snippet::appendCharacters(snippets[index].trigger, trigger);
        std::uint32_t node = 0;
        for (auto it = trigger.rbegin(); it != trigger.rend(); ++it) {
            const auto found = tree[node].children.find(*it);
            if (found != tree[node].children.end()) {
                node = found->second;
                continue;
            }
            const auto next = static_cast<std::uint32_t>(tree.size());
            tree[node].children.emplace(*it, next);
            tree.emplace_back();
            node = next;
        }
        if (tree[node].snippet == kNone) {
            tree[node].snippet = static_cast<std::uint32_t>(index);
        }
    }
    nodes_.resize(tree.size());
    for (std::size_t i = 0; i < tree.size(); ++i) {
        nodes_[i].firstEdge = static_cast<std::uint32_t>(edges_.size());
        nodes_[i].edgeCount = static_cast<std::uint32_t>(tree[i].children.size());
        nodes_[i].snippet = tree[i].snippet;
        for (const auto& [character, next] : tree[i].children) {
            edges_.push_back({character, next});
        }
    }
}

std::uint32_t SnippetTrie::child(const Node& node, char32_t character) const {
    const Edge* first = edges_.data() + node.firstEdge;
    const Edge* last = first + node.edgeCount;
    const Edge* found = std::lower_bound(
        first, last, character, [](const Edge& edge, char32_t c) { return edge.character < c; });
    return found != last && found->character == character ? found->child : kNone;
}

std::optional<SnippetTrie::Match> SnippetTrie::longestSuffix(
    std::span<const char32_t> typed) const {
    std::optional<Match> best;
    std::uint32_t node = 0;
    for (std::size_t depth = 1; depth <= typed.size(); ++depth) {
        node = child(nodes_[node], typed[typed.size() - depth]);
        if (node == kNone) {
            break;
        }
        if (nodes_[node].snippet != kNone) {
            best = Match{nodes_[node].snippet, depth};
        }
    }
    return best;
}

}  // namespace quorvane
