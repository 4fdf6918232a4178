#include "tools/keyboard/ClipSearchKey.hpp"

#include <algorithm>
#include <array>
#include <bit>

#include "tools/keyboard/ClipText.hpp"

namespace quorvane {

namespace {

constexpr std::size_t kFewestBits = 512;
// Every pair of classes has a bit of its own from here on.
constexpr std::size_t kMostBits = 4096;

// Bytes of folded text in 64 classes: each letter and digit its own, all white space one, the
// rest shared. Pairs of classes rather than of bytes keep the filter small; bytes that share a
// class only make it pass a little more often.
constexpr std::array<std::uint8_t, 256> kClass = [] {
    std::array<std::uint8_t, 256> classes{};
    for (int c = 0; c < 256; ++c) {
        std::uint8_t value = 0;
        if (c >= 'a' && c <= 'z') {
            value = static_cast<std::uint8_t>(1 + c - 'a');
        } else if (c >= 'A' && c <= 'Z') {
            value = static_cast<std::uint8_t>(1 + c - 'A');
        } else if (c >= '0' && c <= '9') {
            value = static_cast<std::uint8_t>(27 + c - '0');
        } else if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            value = 0;
        } else if (c < 0x80) {
            value = static_cast<std::uint8_t>(37 + c % 11);
        } else {
            value = static_cast<std::uint8_t>(48 + c % 16);
        }
        classes[static_cast<std::size_t>(c)] = value;
    }
    return classes;
}();

unsigned pairOf(unsigned char first, unsigned char second) {
    return (unsigned{kClass[first]} << 6) | kClass[second];
}

}  // namespace

ClipSearchKey::Query::Query(std::string folded) : finder_(std::move(folded)) {
    const std::string& text = finder_.folded();
    for (std::size_t i = 1; i < text.size(); ++i) {
        pairs_.push_back(static_cast<std::uint16_t>(
            pairOf(static_cast<unsigned char>(text[i - 1]), static_cast<unsigned char>(text[i]))));
    }
    std::sort(pairs_.begin(), pairs_.end());
    pairs_.erase(std::unique(pairs_.begin(), pairs_.end()), pairs_.end());
}

ClipSearchKey::ClipSearchKey(std::string_view text) {
    const std::size_t bits = std::clamp(std::bit_ceil(text.size()), kFewestBits, kMostBits);
    shift_ = 32 - std::countr_zero(bits);
    // One byte per bit while the text is read: plain stores, no read-modify-write chain.
    std::array<std::uint8_t, kMostBits> seen{};
    // Letters share a class with their upper case, so only other characters need folding.
    unsigned previous = kClass[' '];
    const auto add = [&](unsigned char byte) {
        const unsigned current = kClass[byte];
        seen[slot((previous << 6) | current)] = 1;
        previous = current;
    };
    for (std::size_t at = 0; at < text.size();) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if (byte < 0x80) {
            add(byte);
            ++at;
            continue;
        }
        std::array<char, 4> folded;
        const std::size_t written = ClipText::foldInto(text, at, folded.data(), folded.size());
        for (std::size_t i = 0; i < written; ++i) {
            add(static_cast<unsigned char>(folded[i]));
        }
    }
    bits_.assign(bits / 64, 0);
    for (std::size_t bit = 0; bit < bits; ++bit) {
        bits_[bit / 64] |= std::uint64_t{seen[bit]} << (bit % 64);
    }
}

std::size_t ClipSearchKey::slot(unsigned pair) const {
    return (pair * 2654435761U) >> shift_;
}

bool ClipSearchKey::mayContain(const Query& query) const {
    if (bits_.empty()) {
        return true;
    }
    return std::all_of(query.pairs_.begin(), query.pairs_.end(), [this](std::uint16_t pair) {
        const std::size_t bit = slot(pair);
        return ((bits_[bit / 64] >> (bit % 64)) & 1) != 0;
    });
}

}  // namespace quorvane
