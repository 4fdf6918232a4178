#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
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

    // The bytes of a block that a string does not hold as they are.
    static auto specialBytes(ByteBlock::Bytes block) {
        return (block < 0x20) | (block >= 0x80) | (block == '"') | (block == '\\');
    }

    // How many bytes at the start of `text` a string holds as they are: up to the first quote,
    // backslash, control character or byte of a multi-byte character. Inline: the reader and
    // the writer call it for every run of text between escapes.
    static std::size_t plainLength(std::string_view text) {
        const char* const data = text.data();
        const std::size_t size = text.size();
        std::size_t i = 0;
        for (; i + ByteBlock::kSize <= size; i += ByteBlock::kSize) {
            const auto special = specialBytes(ByteBlock::load(data + i));
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

    // One step of copying a string's bytes as they are, from `from` to `to`: up to the first
    // byte that needs attention, within the next sixteen or before `last`. Answers how many
    // it copied; sixteen means all of them were plain and more may follow. A whole block is
    // stored before it is looked at, so `to` needs sixteen bytes of room.
    static std::size_t copyPlainStep(const char* from, const char* last, char* to) {
        if (last - from >= static_cast<std::ptrdiff_t>(ByteBlock::kSize)) {
            const ByteBlock::Bytes block = ByteBlock::load(from);
            std::memcpy(to, &block, sizeof block);
            const auto special = specialBytes(block);
            return ByteBlock::none(special) ? ByteBlock::kSize : ByteBlock::firstMarked(special);
        }
        const std::size_t plain =
            plainLength(std::string_view(from, static_cast<std::size_t>(last - from)));
        std::memcpy(to, from, plain);
        return plain;
    }
};

}  // namespace quorvane
