#include "base/JsonWriter.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>

#include "base/ByteBlock.hpp"
#include "base/Utf8.hpp"

namespace quorvane {

namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

// The letter of each two-character escape, or 0 for a byte that is copied as it is; control
// characters without a letter of their own are written as \u00XX.
constexpr std::array<char, 128> kEscapeLetter = [] {
    std::array<char, 128> letters{};
    for (int c = 0; c < 0x20; ++c) {
        letters[static_cast<std::size_t>(c)] = 'u';
    }
    letters['"'] = '"';
    letters['\\'] = '\\';
    letters['\b'] = 'b';
    letters['\f'] = 'f';
    letters['\n'] = 'n';
    letters['\r'] = 'r';
    letters['\t'] = 't';
    return letters;
}();

}  // namespace

void JsonWriter::string(std::string& out, std::string_view text) {
    // Written through a pointer into room made beforehand for a stretch of the text at its
    // largest (six bytes for each), so the loop over the bytes checks nothing but the bytes.
    // Sixteen bytes are stored at a time before looking at them; when one needs an escape, the
    // output goes on from just before it, so the bytes stored past it are written over. Text
    // with a line break every few words then costs little more than copying it.
    constexpr std::size_t kStretch = 1024;
    constexpr std::size_t kLargest = 6;
    std::size_t end = out.size();
    out.resize(end + 1);
    out[end++] = '"';
    const char* at = text.data();
    const char* const last = text.data() + text.size();
    while (at < last) {
        const auto left = static_cast<std::size_t>(last - at);
        const char* const stop = at + std::min(kStretch, left);
        // A stretch may run on by part of a block of plain bytes, which grows nothing. Room
        // for the rest of the text as most text grows comes with it, so that a long text
        // makes room a few times, not once a stretch.
        const std::size_t room = kLargest * std::min(kStretch, left) + 2 * ByteBlock::kSize;
        if (out.size() - end < room) {
            out.resize(end + room + left + left / 8);
        }
        char* const begin = out.data() + end;
        char* to = begin;
        while (at < stop) {
            const std::size_t plain = copyPlainStep(at, last, to);
            at += plain;
            to += plain;
            if (plain == ByteBlock::kSize) {
                continue;
            }
            if (at == last) {
                break;
            }
            const auto c = static_cast<unsigned char>(*at);
            if (c >= 0x80) {
                const std::string_view rest(at, static_cast<std::size_t>(last - at));
                const std::size_t length = utf8::sequenceLength(rest);
                const std::string_view character =
                    length == 0 ? kReplacementCharacter : rest.substr(0, length);
                std::memcpy(to, character.data(), character.size());
                to += character.size();
                at += length == 0 ? 1 : length;
                continue;
            }
            const char letter = kEscapeLetter[c];
            to[0] = '\\';
            to[1] = letter;
            to += 2;
            if (letter == 'u') {
                to[0] = '0';
                to[1] = '0';
                to[2] = kHexDigits[c >> 4];
                to[3] = kHexDigits[c & 0x0F];
                to += 4;
            }
            ++at;
        }
        end += static_cast<std::size_t>(to - begin);
    }
    out.resize(end + 1);
    out[end] = '"';
}

void JsonWriter::integer(std::string& out, std::int64_t value) {
    std::array<char, 24> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    out.append(buffer.data(), result.ptr);
}

void JsonWriter::real(std::string& out, double value) {
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    // The shortest form is at most 24 characters ("-2.2250738585072014e-308").
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    const std::string_view text(buffer.data(),
                                static_cast<std::size_t>(result.ptr - buffer.data()));
    out += text;
    // "1" would read back as an integer.
    if (text.find_first_of(".e") == std::string_view::npos) {
        out += ".0";
    }
}

}  // namespace quorvane
