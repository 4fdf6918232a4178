#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace quorvane {

// The scalar half of the JSON writer, for code that streams a document of its own shape
// instead of building a Json tree first. Each call appends one token to `out`.
struct JsonWriter {
    // As UTF-8 with only '"', '\' and control characters escaped; any ill-formed byte becomes
    // U+FFFD, so the output always parses.
    static void string(std::string& out, std::string_view text);
    static void integer(std::string& out, std::int64_t value);
    // The shortest form that reads back identically, always with a '.' or an exponent so that
    // it stays a real; NaN and infinities, which JSON cannot express, as null.
    static void real(std::string& out, double value);

    // How many bytes at the start of `text` a string holds as they are: up to the first quote,
    // backslash, control character or byte of a multi-byte character. Inline: the reader and
    // the writer call it for every run of text between escapes.
    static std::size_t plainLength(std::string_view text) {
        // Eight bytes at a time while none of them is special; each test is the usual "some
        // byte is zero" trick, which is exact for the word as a whole.
        constexpr std::uint64_t kOnes = 0x0101010101010101ULL;
        constexpr std::uint64_t kHighBits = 0x8080808080808080ULL;
        const auto hasZero = [](std::uint64_t v) { return (v - kOnes) & ~v & kHighBits; };
        const char* const data = text.data();
        const std::size_t size = text.size();
        std::size_t i = 0;
        for (; i + sizeof(std::uint64_t) <= size; i += sizeof(std::uint64_t)) {
            std::uint64_t word = 0;
            std::memcpy(&word, data + i, sizeof word);
            const std::uint64_t control = (word - kOnes * 0x20) & ~word & kHighBits;
            const std::uint64_t special = (word & kHighBits) | control |
                                          hasZero(word ^ (kOnes * '"')) |
                                          hasZero(word ^ (kOnes * '\\'));
            if (special != 0) {
                // The tricks can only mark too much above a real hit, never below it, so on a
                // little-endian machine the lowest mark is the first special byte.
                if constexpr (std::endian::native == std::endian::little) {
                    return i + static_cast<std::size_t>(std::countr_zero(special)) / 8;
                }
                break;
            }
        }
        for (; i < size; ++i) {
            const auto c = static_cast<unsigned char>(data[i]);
            if (c < 0x20 || c >= 0x80 || c == '"' || c == '\\') {
                break;
            }
        }
        return i;
    }
};

}  // namespace quorvane
