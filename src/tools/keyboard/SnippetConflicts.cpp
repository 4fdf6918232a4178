#include "tools/keyboard/SnippetConflicts.hpp"

#include <optional>
#include <string_view>
#include <unordered_map>

namespace quorvane {

std::string SnippetConflicts::warning(const std::string& shadowed, const std::string& firing) {
    return "“" + shadowed + "” will never work: “" + firing +
           "” fires as soon as you've typed it. Rename one of them.";
}

std::vector<std::string> SnippetConflicts::warnings(const std::vector<Snippet>& snippets) {
    // Each usable trigger with the first snippet that has it, so every snippet looks up only its
    // own prefixes instead of comparing itself with every other snippet.
    std::unordered_map<std::string_view, std::size_t> firstWith;
    for (std::size_t i = 0; i < snippets.size(); ++i) {
        if (snippets[i].isUsable()) {
            firstWith.emplace(snippets[i].trigger, i);
        }
    }
    std::vector<std::string> result(snippets.size());
    for (std::size_t i = 0; i < snippets.size(); ++i) {
        const Snippet& snippet = snippets[i];
        if (!snippet.isUsable()) {
            continue;
        }
        const std::string_view trigger = snippet.trigger;
        std::optional<std::size_t> firing;
        // Every proper prefix that ends on a character boundary.
        for (std::size_t length = 1; length < trigger.size(); ++length) {
            if ((static_cast<unsigned char>(trigger[length]) & 0xC0) != 0x80) {
                const auto found = firstWith.find(trigger.substr(0, length));
                if (found != firstWith.end() && snippets[found->second].id != snippet.id &&
                    (!firing || found->second < *firing)) {
                    firing = found->second;
                }
            }
        }
        if (firing) {
            result[i] = warning(snippet.trigger, snippets[*firing].trigger);
        }
    }
    return result;
}

}  // namespace quorvane
