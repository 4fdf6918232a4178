#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane {

// Text helpers for copies of any size: each looks at no more of the text than it needs.
struct ClipText {
    // Without white space and line breaks (Unicode's, not only ASCII's) at either end.
    static std::string_view trimmed(std::string_view text);
    // One line for a list row: trimmed, each run of white space and line breaks made one
    // space, at most `maxCodePoints` long.
    static std::string preview(std::string_view text, std::size_t maxCodePoints = 200);
    // Case-insensitive containment; `foldedQuery` comes from fold().
    static bool contains(std::string_view text, std::string_view foldedQuery);
    // Lower case for comparing: ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic letters.
    static std::string fold(std::string_view text);
};

}  // namespace quorvane
