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
    std::uint16_t rarest = UINT16_MAX;
    std::uint16_t nextRarest = UINT16_MAX;
    for (std::size_t i = 0; i < folded_.size(); ++i) {
        const auto byte = static_cast<unsigned char>(folded_[i]);
        if (byte >= 0x80) {
            continue;
        }
        const std::uint16_t commonness = kCommonness[byte];
        if (!anchored_ || commonness < rarest) {
            if (anchored_) {
                nextRarest = rarest;
                second_ = first_;
            }
            rarest = commonness;
            first_ = i;
            anchored_ = true;
        } else if (commonness < nextRarest || nextRarest == UINT16_MAX) {
            nextRarest = commonness;
            second_ = i;
        }
    }
    if (anchored_ && nextRarest == UINT16_MAX) {
        second_ = first_;
    }
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
    const auto patternOf = [this](std::size_t index) {
        return ByteBlock::filled(static_cast<std::uint8_t>(folded_[index]) | 0x20);
    };
    const ByteBlock::Bytes firstPattern = patternOf(first_);
    const ByteBlock::Bytes secondPattern = patternOf(second_);
    const char* const data = text.data();
    const std::size_t last = text.size() - length;
    std::size_t at = 0;
    // Sixteen starting places per step, while the bytes read for both anchors lie in the text.
    // Setting the 0x20 bit makes an ASCII capital its small letter; other bytes that it merges
    // only cost a needless comparison.
    for (; at + length + ByteBlock::kSize <= text.size() + 1; at += ByteBlock::kSize) {
        const auto candidates = ((ByteBlock::load(data + at + first_) | 0x20) == firstPattern) &
                                ((ByteBlock::load(data + at + second_) | 0x20) == secondPattern);
        if (!ByteBlock::none(candidates) &&
            ByteBlock::anyMarked(candidates,
                                 [&](std::size_t index) { return matchesAt(text, at + index); })) {
            return true;
        }
    }
    const auto caseless = [](char byte) { return static_cast<unsigned char>(byte) | 0x20U; };
    for (; at <= last; ++at) {
        if (caseless(data[at + first_]) == caseless(folded_[first_]) &&
            caseless(data[at + second_]) == caseless(folded_[second_]) && matchesAt(text, at)) {
            return true;
        }
    }
    return false;
}

}  // namespace quorvane
