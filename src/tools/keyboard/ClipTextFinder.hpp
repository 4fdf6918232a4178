#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane {

// Finds one folded query in many texts, case-insensitively, without folding the texts. Three
// ASCII bytes of the query, the rarest in ordinary writing, are looked for sixteen starting
// places at a time at their distances from each other; only where all are present is the text
// folded and compared. Sound because ASCII bytes fold only to ASCII bytes and nothing else folds to
// them. A query without ASCII falls back to folding the text piece by piece.
class ClipTextFinder {
public:
    // `folded` comes from ClipText::fold.
    explicit ClipTextFinder(std::string folded);

    bool foundIn(std::string_view text) const;
    const std::string& folded() const { return folded_; }

private:
    bool matchesAt(std::string_view text, std::size_t at) const;

    static constexpr std::size_t kAnchors = 3;

    std::string folded_;
    bool anchored_ = false;
    std::array<std::size_t, kAnchors> anchors_{};
};

}  // namespace quorvane
