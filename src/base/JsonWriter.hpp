#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/ByteBlock.hpp"

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
        const char* const data = text.data();
        const std::size_t size = text.size();
        std::size_t i = 0;
        for (; i + ByteBlock::kSize <= size; i += ByteBlock::kSize) {
            const ByteBlock::Bytes block = ByteBlock::load(data + i);
            const auto special =
                (block < 0x20) | (block >= 0x80) | (block == '"') | (block == '\\');
            if (!ByteBlock::none(special)) {
                return i + ByteBlock::firstMarked(special);
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
