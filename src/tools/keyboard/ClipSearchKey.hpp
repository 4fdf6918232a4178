#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/keyboard/ClipTextFinder.hpp"

namespace quorvane {

// What the list's search needs to know about one text beforehand, so that each keystroke in
// the search field does not read every long text again: a small filter of the byte pairs of
// the text's folded form. A query with a pair the text lacks cannot be in it; only the texts
// that may hold the query are read. About one bit per byte of text, between 64 and 512 bytes.
class ClipSearchKey {
public:
    // The folded query and its byte pairs, worked out once per search.
    class Query {
    public:
        // `folded` comes from ClipText::fold.
        explicit Query(std::string folded);
        const std::string& folded() const { return finder_.folded(); }
        const ClipTextFinder& finder() const { return finder_; }

    private:
        friend class ClipSearchKey;
        ClipTextFinder finder_;
        std::vector<std::uint16_t> pairs_;
    };

    // No filter: every query may be in it.
    ClipSearchKey() = default;
    explicit ClipSearchKey(std::string_view text);

    // False only when the query is certainly not in the text.
    bool mayContain(const Query& query) const;
    // The filter's size, for keeping an eye on memory.
    std::size_t bytes() const { return bits_.size() * sizeof(std::uint64_t); }
    const void* data() const { return bits_.data(); }

private:
    std::size_t slot(unsigned pair) const;

    std::vector<std::uint64_t> bits_;
    int shift_ = 32;
};

}  // namespace quorvane
