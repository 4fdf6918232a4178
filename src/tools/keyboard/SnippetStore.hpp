#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/keyboard/Snippet.hpp"

namespace quorvane {

class Preferences;

// The snippets kept under the tool's preference key, as the JSON of the whole list in data. The
// tool and the `quorvane snippets` command read and write them the same way.
struct SnippetStore {
    static constexpr const char* kKey = "textSnippets.snippets";

    // What a first run starts with.
    static std::vector<Snippet> defaults();

    // JSON text of the list, as data, and back. Reading refuses anything that is not a list of
    // well-formed snippets; `error` (when given) says why.
    static std::string encode(const std::vector<Snippet>& snippets);
    static std::optional<std::vector<Snippet>> decode(std::string_view text,
                                                      std::string* error = nullptr);

    struct Loaded {
        std::vector<Snippet> snippets;
        // False when something is stored that cannot be read: the defaults stand in for it, and
        // it is left in place until the user changes the list.
        bool readable = true;
        bool stored = false;
    };
    static Loaded load(const Preferences& preferences);
    static void save(Preferences& preferences, const std::vector<Snippet>& snippets);
};

}  // namespace quorvane
