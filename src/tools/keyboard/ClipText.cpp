#include "tools/keyboard/ClipText.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "base/Utf8.hpp"

namespace quorvane {

namespace {

// The code point starting at `at` and its length; a stray byte counts as itself.
std::pair<char32_t, std::size_t> decode(std::string_view text, std::size_t at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    const std::size_t length = utf8::sequenceLength(text.substr(at));
    if (length <= 1 || byte < 0xC0) {
        return {byte, 1};
    }
    char32_t code = byte & (0x7F >> length);
    for (std::size_t i = 1; i < length; ++i) {
        code = (code << 6) | (static_cast<unsigned char>(text[at + i]) & 0x3F);
    }
    return {code, length};
}

bool isSpace(char32_t c) {
    return c == ' ' || (c >= 0x09 && c <= 0x0D) || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F ||
           c == 0x205F || c == 0x3000;
}

// The length of the sequence that ends just before `end`.
std::size_t lastLength(std::string_view text, std::size_t end) {
    std::size_t start = end - 1;
    while (start > 0 && end - start < 4 &&
           (static_cast<unsigned char>(text[start]) & 0xC0) == 0x80) {
        --start;
    }
    return end - start;
}

constexpr std::array<unsigned char, 128> kAsciiLower = [] {
    std::array<unsigned char, 128> lower{};
    for (int c = 0; c < 128; ++c) {
        lower[static_cast<std::size_t>(c)] =
            static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
    }
    return lower;
}();

char32_t foldCode(char32_t c) {
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7) ||
        (c >= 0x391 && c <= 0x3AB && c != 0x3A2) || (c >= 0x410 && c <= 0x42F)) {
        return c + 32;
    }
    if (c >= 0x400 && c <= 0x40F) {
        return c + 80;
    }
    // Greek capitals with an accent.
    if (c == 0x386) {
        return 0x3AC;
    }
    if (c >= 0x388 && c <= 0x38A) {
        return c + 37;
    }
    if (c == 0x38C) {
        return 0x3CC;
    }
    if (c == 0x38E || c == 0x38F) {
        return c + 63;
    }
    if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149 &&
        c != 0x17F) {
        // Pairs in Latin Extended-A: upper even then lower odd, shifting after U+0138.
        const bool shifted = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
        const bool upper = shifted ? (c % 2 == 1) : (c % 2 == 0);
        return upper ? c + 1 : c;
    }
    return c;
}

}  // namespace

std::string_view ClipText::trimmed(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size()) {
        const auto [code, length] = decode(text, start);
        if (!isSpace(code)) {
            break;
        }
        start += length;
    }
    std::size_t end = text.size();
    while (end > start) {
        const std::size_t length = lastLength(text, end);
        if (!isSpace(decode(text, end - length).first)) {
            break;
        }
        end -= length;
    }
    return text.substr(start, end - start);
}

std::string ClipText::preview(std::string_view text, std::size_t maxCodePoints) {
    std::string line;
    std::size_t count = 0;
    bool pendingSpace = false;
    for (std::size_t at = 0; at < text.size() && count < maxCodePoints;) {
        const auto [code, length] = decode(text, at);
        if (isSpace(code)) {
            pendingSpace = !line.empty();
        } else {
            if (pendingSpace) {
                line += ' ';
                ++count;
                pendingSpace = false;
            }
            if (count < maxCodePoints) {
                line.append(text.substr(at, length));
                ++count;
            }
        }
        at += length;
    }
    return line;
}

std::size_t ClipText::foldInto(std::string_view text, std::size_t& at, char* out,
                               std::size_t capacity) {
    std::size_t written = 0;
    const char* const data = text.data();
    const std::size_t size = text.size();
    while (at < size) {
        // ASCII is the common case and needs no decoding: eight bytes at a time, as one
        // word, each upper-case letter found by two additions that cannot carry into the next
        // byte, then the byte by byte rest.
        constexpr std::uint64_t kOnes = 0x0101010101010101ULL;
        constexpr std::uint64_t kHighBits = 0x8080808080808080ULL;
        while (std::min(capacity - written, size - at) >= sizeof(std::uint64_t)) {
            std::uint64_t word = 0;
            std::memcpy(&word, data + at, sizeof word);
            if ((word & kHighBits) != 0) {
                break;
            }
            const std::uint64_t fromA = word + kOnes * (0x80 - 'A');
            const std::uint64_t pastZ = word + kOnes * (0x80 - 'Z' - 1);
            word |= (fromA & ~pastZ & kHighBits) >> 2;
            std::memcpy(out + written, &word, sizeof word);
            at += sizeof word;
            written += sizeof word;
        }
        const std::size_t room = std::min(capacity - written, size - at);
        std::size_t i = 0;
        while (i < room) {
            const auto byte = static_cast<unsigned char>(data[at + i]);
            if (byte >= 0x80) {
                break;
            }
            out[written + i] = static_cast<char>(kAsciiLower[byte]);
            ++i;
        }
        written += i;
        at += i;
        if (at == size || written == capacity) {
            break;
        }
        const auto [code, length] = decode(text, at);
        if (capacity - written < length) {
            break;
        }
        const char32_t lower = length == 1 ? code : foldCode(code);
        if (lower == code) {
            std::copy_n(data + at, length, out + written);
        } else {
            // Every folded pair above is two bytes either way.
            out[written] = static_cast<char>(0xC0 | (lower >> 6));
            out[written + 1] = static_cast<char>(0x80 | (lower & 0x3F));
        }
        written += length;
        at += length;
    }
    return written;
}

std::string ClipText::fold(std::string_view text) {
    std::string folded(text.size(), '\0');
    std::size_t at = 0;
    foldInto(text, at, folded.data(), folded.size());
    return folded;
}

bool ClipText::contains(std::string_view text, std::string_view foldedQuery) {
    if (foldedQuery.empty()) {
        return true;
    }
    // Folding keeps lengths, so a longer query cannot be in the text.
    if (foldedQuery.size() > text.size()) {
        return false;
    }
    constexpr std::size_t kFirstPiece = 32;
    constexpr std::size_t kLargestPiece = 16384;
    constexpr std::size_t kLongestCarried = 1024;
    if (foldedQuery.size() > kLongestCarried) {
        return fold(text).find(foldedQuery) != std::string::npos;
    }
    // A match may straddle two pieces: the end of one is carried to the front of the next.
    std::array<char, kLargestPiece + kLongestCarried> buffer;
    std::size_t carried = 0;
    std::size_t at = 0;
    std::size_t piece = kFirstPiece;
    while (at < text.size()) {
        const std::size_t written = foldInto(text, at, buffer.data() + carried, piece);
        const std::string_view window(buffer.data(), carried + written);
        if (window.find(foldedQuery) != std::string_view::npos) {
            return true;
        }
        carried = std::min(window.size(), foldedQuery.size() - 1);
        std::copy(window.end() - static_cast<std::ptrdiff_t>(carried), window.end(),
                  buffer.begin());
        piece = std::min(piece * 2, kLargestPiece);
    }
    return false;
}

}  // namespace quorvane
