#include "tools/keyboard/ClipTextFinder.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

#include "base/ByteBlock.hpp"
#include "tools/keyboard/ClipText.hpp"

namespace quorvane {

namespace {

// How common each ASCII byte is in ordinary text, roughly, in parts per thousand of letters;
// the anchors are the two rarest bytes of the query, so that both rarely appear together.
constexpr std::array<std::uint16_t, 128> kCommonness = [] {
    std::array<std::uint16_t, 128> table{};
    // Punctuation and digits are uncommon but not as rare as the rarest letters.
    for (auto& value : table) {
        value = 10;
    }
    constexpr std::array<std::uint16_t, 26> letters = {82, 15, 28, 43, 127, 22, 20, 61, 70,
                                                       2,  8,  40, 24, 67,  75, 19, 1,  60,
                                                       63, 91, 28, 10, 24,  2,  20, 1};
    for (std::size_t letter = 0; letter < letters.size(); ++letter) {
        table['a' + letter] = letters[letter];
    }
    table[' '] = 180;
    table['\n'] = 30;
    return table;
}();

}  // namespace

ClipTextFinder::ClipTextFinder(std::string folded) : folded_(std::move(folded)) {
    std::vector<std::size_t> ascii;
    for (std::size_t i = 0; i < folded_.size(); ++i) {
        if (static_cast<unsigned char>(folded_[i]) < 0x80) {
            ascii.push_back(i);
        }
    }
    if (ascii.empty()) {
        return;
    }
    std::stable_sort(ascii.begin(), ascii.end(), [this](std::size_t a, std::size_t b) {
        return kCommonness[static_cast<unsigned char>(folded_[a])] <
               kCommonness[static_cast<unsigned char>(folded_[b])];
    });
    // A query with fewer ASCII bytes than anchors repeats its last one.
    for (std::size_t i = 0; i < anchors_.size(); ++i) {
        anchors_[i] = ascii[std::min(i, ascii.size() - 1)];
    }
    anchored_ = true;
}

bool ClipTextFinder::matchesAt(std::string_view text, std::size_t at) const {
    // Most candidates differ within a few ASCII bytes; only text beyond ASCII is folded.
    for (std::size_t i = 0; i < folded_.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[at + i]);
        if (byte >= 0x80) {
            break;
        }
        const auto lower = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + 32 : byte);
        if (lower != folded_[i]) {
            return false;
        }
        if (i + 1 == folded_.size()) {
            return true;
        }
    }
    // A match starts a character: the query's first byte is never a continuation byte.
    std::array<char, 256> small;
    std::vector<char> large;
    char* window = small.data();
    if (folded_.size() > small.size()) {
        large.resize(folded_.size());
        window = large.data();
    }
    std::size_t from = at;
    const std::size_t written = ClipText::foldInto(text, from, window, folded_.size());
    return written == folded_.size() && std::memcmp(window, folded_.data(), written) == 0;
}

bool ClipTextFinder::foundIn(std::string_view text) const {
    const std::size_t length = folded_.size();
    if (length == 0) {
        return true;
    }
    if (length > text.size()) {
        return false;
    }
    if (!anchored_) {
        return ClipText::contains(text, folded_);
    }
    std::array<ByteBlock::Bytes, kAnchors> patterns;
    for (std::size_t i = 0; i < kAnchors; ++i) {
        patterns[i] = ByteBlock::filled(static_cast<std::uint8_t>(folded_[anchors_[i]]) | 0x20);
    }
    const char* const data = text.data();
    const std::size_t places = text.size() - length + 1;
    // Setting the 0x20 bit makes an ASCII capital its small letter; other bytes that it merges
    // only cost a needless comparison.
    const auto anchorAt = [&](std::size_t at, std::size_t anchor) {
        return (ByteBlock::load(data + at + anchors_[anchor]) | 0x20) == patterns[anchor];
    };
    const auto foundFrom = [&](std::size_t at) {
        const auto candidates = anchorAt(at, 0) & anchorAt(at, 1) & anchorAt(at, 2);
        return !ByteBlock::none(candidates) &&
               ByteBlock::anyMarked(candidates,
                                    [&](std::size_t index) { return matchesAt(text, at + index); });
    };
    if (places >= ByteBlock::kSize) {
        std::size_t at = 0;
        for (; at + ByteBlock::kSize <= places; at += ByteBlock::kSize) {
            if (foundFrom(at)) {
                return true;
            }
        }
        // The last places in one more block, overlapping the one before.
        return at < places && foundFrom(places - ByteBlock::kSize);
    }
    const auto caseless = [](char byte) { return static_cast<unsigned char>(byte) | 0x20U; };
    for (std::size_t at = 0; at < places; ++at) {
        if (std::all_of(anchors_.begin(), anchors_.end(),
                        [&](std::size_t anchor) {
                            return caseless(data[at + anchor]) == caseless(folded_[anchor]);
                        }) &&
            matchesAt(text, at)) {
            return true;
        }
    }
    return false;
}

}  // namespace quorvane
