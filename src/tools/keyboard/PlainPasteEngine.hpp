#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/PasteboardItem.hpp"

namespace quorvane {

// The decisions of pasting as plain text: what text to paste, which clipboard to give back
// afterwards, and whether giving it back would throw away something the user copied since.
class PlainPasteEngine {
public:
    // The text to paste; nothing when the clipboard holds no text.
    static std::optional<std::string> textToPaste(const std::optional<std::string>& string);

    // Whether the clipboard seen now is still the plain text written by an earlier paste whose
    // original is waiting to be put back. Then that original, not this text, is the one to keep.
    bool holdsOwnText(std::int64_t changeCount) const {
        return saved_.has_value() && changeCount == written_;
    }
    // The plain text went onto the clipboard (its change count once written), replacing
    // `saved`; nothing saved means the original kept from an earlier paste still stands.
    void wrote(std::int64_t changeCount, std::optional<std::vector<PasteboardItem>> saved);
    // Called when it is time to put the original back: the items to write, or nothing when
    // someone copied since (the newer copy wins) or nothing is pending.
    std::optional<std::vector<PasteboardItem>> restore(std::int64_t changeCount);
    bool isPending() const { return saved_.has_value(); }

private:
    std::optional<std::vector<PasteboardItem>> saved_;
    std::int64_t written_ = -1;
};

}  // namespace quorvane
