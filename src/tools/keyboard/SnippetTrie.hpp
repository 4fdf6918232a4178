#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "tools/keyboard/Snippet.hpp"

namespace quorvane {

// The usable triggers, spelled backwards in one tree, so that finding the longest trigger that
// ends what was just typed walks back from the last character only as far as some trigger
// reaches, however many snippets there are. Built again whenever the list changes.
class SnippetTrie {
public:
    struct Match {
        std::size_t index = 0;   // in the list the trie was built from
        std::size_t length = 0;  // the trigger's characters
        friend bool operator==(const Match&, const Match&) = default;
    };

    SnippetTrie();
    // Unusable snippets are left out; of equal triggers the first in the list is kept.
    explicit SnippetTrie(const std::vector<Snippet>& snippets);

    // The snippet whose trigger is the longest suffix of `typed` (characters, oldest first).
    std::optional<Match> longestSuffix(std::span<const char32_t> typed) const;

    std::size_t nodeCount() const { return nodes_.size(); }

private:
    struct Edge {
        char32_t character;
        std::uint32_t child;
    };
    struct Node {
        std::uint32_t firstEdge = 0;
        std::uint32_t edgeCount = 0;
        // The snippet whose trigger ends here, or kNone.
        std::uint32_t snippet = kNone;
    };
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    std::uint32_t child(const Node& node, char32_t character) const;

    std::vector<Node> nodes_;
    // Each node's edges lie together, sorted by character.
    std::vector<Edge> edges_;
};

}  // namespace quorvane
