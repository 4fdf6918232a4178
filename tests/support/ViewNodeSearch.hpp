#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/ViewNode.hpp"

namespace quorvane {

// Every node of a tree, depth first, the root first.
inline void collectNodes(const ViewNode& node, std::vector<const ViewNode*>& into) {
    into.push_back(&node);
    for (const auto& child : node.children) {
        collectNodes(child, into);
    }
}

inline std::vector<const ViewNode*> allNodes(const ViewNode& root) {
    std::vector<const ViewNode*> nodes;
    collectNodes(root, nodes);
    return nodes;
}

// The first node of `kind` showing `text`; null when there is none.
inline const ViewNode* findNode(const ViewNode& root, ViewNode::Kind kind, std::string_view text) {
    for (const ViewNode* node : allNodes(root)) {
        if (node->kind == kind && node->text == text) {
            return node;
        }
    }
    return nullptr;
}

// The texts and symbols the tree shows, in reading order.
inline std::vector<std::string> shownTexts(const ViewNode& root) {
    std::vector<std::string> texts;
    for (const ViewNode* node : allNodes(root)) {
        if (!node->text.empty()) {
            texts.push_back(node->text);
        }
        if (!node->symbol.empty()) {
            texts.push_back("[" + node->symbol + "]");
        }
    }
    return texts;
}

}  // namespace quorvane
