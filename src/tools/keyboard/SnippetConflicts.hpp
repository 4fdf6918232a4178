#pragma once

#include <string>
#include <vector>

#include "tools/keyboard/Snippet.hpp"

namespace quorvane {

// Snippets that can never fire because a shorter code fires first while theirs is being typed.
struct SnippetConflicts {
    // One text per snippet, in the list's order: the warning to show under it, or empty.
    static std::vector<std::string> warnings(const std::vector<Snippet>& snippets);
    static std::string warning(const std::string& shadowed, const std::string& firing);
};

}  // namespace quorvane
