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
    // Case-insensitive containment; `foldedQuery` comes from fold(). Reads the text in pieces
    // of growing size, so a match near the start is found at once and no copy of a large text
    // is ever made.
    static bool contains(std::string_view text, std::string_view foldedQuery);
    // Lower case for comparing: ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic letters.
    // Every character keeps its length in bytes, so the folded text is exactly as long; a byte
    // that is not part of a well-formed character stays as it is.
    static std::string fold(std::string_view text);
    // Folds whole characters of `text` from `at` into `out` until it holds `capacity` bytes
    // or the text ends; answers the bytes written and moves `at` past what was folded.
    // `capacity` is at least 4, the longest character.
    static std::size_t foldInto(std::string_view text, std::size_t& at, char* out,
                                std::size_t capacity);
};

}  // namespace quorvane
