#include "base/JsonWriter.hpp"

#include <array>
#include <charconv>
#include <cmath>
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
    // Written through a pointer into room made beforehand. Sixteen bytes are stored at a time
    // before looking at them; when one needs an escape, the output goes on from just before
    // it, so the bytes stored past it are written over. Text with a line break every few
    // words then costs little more than copying it.
    std::size_t end = out.size();
    out.resize(end + text.size() + 2 + text.size() / 8 + 2 * ByteBlock::kSize);
    const auto room = [&](std::size_t needed) {
        if (out.size() - end < needed) {
            out.resize(end + needed + (out.size() - end) + text.size() / 4);
        }
        return out.data() + end;
    };
    *room(1) = '"';
    ++end;
    const char* const data = text.data();
    const std::size_t size = text.size();
    std::size_t i = 0;
    while (i < size) {
        if (i + ByteBlock::kSize <= size) {
            const ByteBlock::Bytes block = ByteBlock::load(data + i);
            std::memcpy(room(ByteBlock::kSize), &block, sizeof block);
            const auto special =
                (block < 0x20) | (block >= 0x80) | (block == '"') | (block == '\\');
            if (ByteBlock::none(special)) {
                end += ByteBlock::kSize;
                i += ByteBlock::kSize;
                continue;
            }
            const std::size_t plain = ByteBlock::firstMarked(special);
            end += plain;
            i += plain;
        } else {
            const std::size_t plain = plainLength(text.substr(i));
            std::memcpy(room(plain), data + i, plain);
            end += plain;
            i += plain;
            if (i == size) {
                break;
            }
        }
        const auto c = static_cast<unsigned char>(data[i]);
        if (c >= 0x80) {
            const std::size_t length = utf8::sequenceLength(text.substr(i));
            const std::string_view character =
                length == 0 ? kReplacementCharacter : text.substr(i, length);
            std::memcpy(room(character.size()), character.data(), character.size());
            end += character.size();
            i += length == 0 ? 1 : length;
            continue;
        }
        const char letter = kEscapeLetter[c];
        char* const at = room(6);
        at[0] = '\\';
        at[1] = letter;
        end += 2;
        if (letter == 'u') {
            at[2] = '0';
            at[3] = '0';
            at[4] = kHexDigits[c >> 4];
            at[5] = kHexDigits[c & 0x0F];
            end += 4;
        }
        ++i;
    }
    *room(1) = '"';
    out.resize(end + 1);
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
