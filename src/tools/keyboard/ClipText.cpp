#include "tools/keyboard/ClipText.hpp"

#include <algorithm>

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

char32_t foldCode(char32_t c) {
    if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7) ||
        (c >= 0x391 && c <= 0x3AB && c != 0x3A2) || (c >= 0x410 && c <= 0x42F)) {
        return c + 32;
    }
    if (c >= 0x400 && c <= 0x40F) {
        return c + 80;
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

std::string ClipText::fold(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto [code, length] = decode(text, at);
        const char32_t lower = foldCode(code);
        if (lower == code) {
            folded.append(text.substr(at, length));
        } else {
            utf8::appendCodePoint(folded, lower);
        }
        at += length;
    }
    return folded;
}

bool ClipText::contains(std::string_view text, std::string_view foldedQuery) {
    if (foldedQuery.empty()) {
        return true;
    }
    const bool asciiQuery = std::all_of(foldedQuery.begin(), foldedQuery.end(), [](char c) {
        return static_cast<unsigned char>(c) < 0x80;
    });
    if (asciiQuery) {
        // ASCII letters only match ASCII letters, so folding bytes on the fly is enough and
        // needs no copy of a large text.
        const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; };
        return std::search(text.begin(), text.end(), foldedQuery.begin(), foldedQuery.end(),
                           [&](char a, char b) { return lower(a) == b; }) != text.end();
    }
    return fold(text).find(foldedQuery) != std::string::npos;
}

}  // namespace quorvane
