#include "base/Utf8.hpp"

#include "base/ByteBlock.hpp"

namespace quorvane::utf8 {
namespace {

// How much of the sequence at the start of `text` is well-formed: `length` bytes fit, out of the
// `expected` that its lead byte announces (0 when the first byte cannot start a character).
struct Prefix {
    std::size_t length = 0;
    std::size_t expected = 0;
};

Prefix scan(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80) {
        return {1, 1};
    }
    // The second byte's range is narrowed for the lead bytes whose full range would admit
    // overlong forms (E0, F0), surrogates (ED) or values past U+10FFFF (F4).
    std::size_t expected = 0;
    unsigned low = 0x80;
    unsigned high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        expected = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        expected = 3;
        low = lead == 0xE0 ? 0xA0 : low;
        high = lead == 0xED ? 0x9F : high;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        expected = 4;
        low = lead == 0xF0 ? 0x90 : low;
        high = lead == 0xF4 ? 0x8F : high;
    } else {
        return {};
    }
    std::size_t length = 1;
    while (length < expected && length < text.size()) {
        const unsigned next = byte(length);
        if (next < low || next > high) {
            break;
        }
        ++length;
        low = 0x80;
        high = 0xBF;
    }
    return {length, expected};
}

}  // namespace

std::size_t sequenceLength(std::string_view text) {
    const Prefix prefix = scan(text);
    return prefix.expected != 0 && prefix.length == prefix.expected ? prefix.length : 0;
}

bool isTruncatedSequence(std::string_view text) {
    const Prefix prefix = scan(text);
    return prefix.length < prefix.expected && prefix.length == text.size();
}

bool isValid(std::string_view text) {
    return validPrefixLength(text) == text.size();
}

std::size_t validPrefixLength(std::string_view text) {
    std::size_t pos = 0;
    while (pos < text.size()) {
        // ASCII, the common case, sixteen bytes at a time.
        if (pos + ByteBlock::kSize <= text.size()) {
            const auto high = ByteBlock::load(text.data() + pos) >= 0x80;
            if (ByteBlock::none(high)) {
                pos += ByteBlock::kSize;
                continue;
            }
            pos += ByteBlock::firstMarked(high);
        }
        if (static_cast<unsigned char>(text[pos]) < 0x80) {
            ++pos;
            continue;
        }
        const std::size_t length = sequenceLength(text.substr(pos));
        if (length == 0) {
            break;
        }
        pos += length;
    }
    return pos;
}

void appendCodePoint(std::string& out, char32_t codePoint) {
    const auto put = [&out](char32_t bits) { out += static_cast<char>(bits); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | (codePoint >> 6));
        put(0x80 | (codePoint & 0x3F));
    } else if ((codePoint >= 0xD800 && codePoint <= 0xDFFF) || codePoint > 0x10FFFF) {
        out += "\xEF\xBF\xBD";
    } else if (codePoint < 0x10000) {
        put(0xE0 | (codePoint >> 12));
        put(0x80 | ((codePoint >> 6) & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    } else {
        put(0xF0 | (codePoint >> 18));
        put(0x80 | ((codePoint >> 12) & 0x3F));
        put(0x80 | ((codePoint >> 6) & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    }
}

std::string truncate(std::string_view text, std::size_t maxCodePoints) {
    std::size_t pos = 0;
    for (std::size_t count = 0; count < maxCodePoints && pos < text.size(); ++count) {
        const std::size_t length = sequenceLength(text.substr(pos));
        pos += length == 0 ? 1 : length;
    }
    return std::string(text.substr(0, pos));
}

}  // namespace quorvane::utf8
