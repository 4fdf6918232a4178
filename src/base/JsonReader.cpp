#include "base/JsonReader.hpp"

#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "base/ByteBlock.hpp"
#include "base/HexDigit.hpp"
#include "base/JsonWriter.hpp"
#include "base/Utf8.hpp"

namespace quorvane {

namespace {

// Up to this magnitude every integer has an exact double. Integer literals beyond it are read as
// reals, which is also what any other reader of the file would make of them.
constexpr std::uint64_t kMaxExactInteger = std::uint64_t{1} << 53;
// 2^53 has 16 digits, so a literal with more is beyond it whatever its digits.
constexpr std::size_t kMaxExactIntegerDigits = 16;

// The two-character escapes: the character each letter after a backslash stands for, or 0.
constexpr std::array<char, 256> kEscaped = [] {
    std::array<char, 256> escaped{};
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view characters = "\"\\/\b\f\n\r\t";
    for (std::size_t i = 0; i < letters.size(); ++i) {
        escaped[static_cast<unsigned char>(letters[i])] = characters[i];
    }
    return escaped;
}();

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isWhitespace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

}  // namespace

void JsonReader::skipWhitespace() {
    while (!atEnd() && isWhitespace(peek())) {
        ++pos_;
    }
}

bool JsonReader::skip(char c) {
    skipWhitespace();
    if (!atEnd() && peek() == c) {
        ++pos_;
        return true;
    }
    return false;
}

bool JsonReader::expect(char c, const char* message) {
    skipWhitespace();
    if (atEnd()) {
        return failAtEnd();
    }
    if (peek() != c) {
        return fail(pos_, message);
    }
    ++pos_;
    return true;
}

bool JsonReader::fail(std::size_t offset, const char* message) {
    error_.offset = offset;
    error_.message = message;
    return false;
}

bool JsonReader::readLiteral(std::string_view word) {
    const std::size_t start = pos_;
    for (const char expected : word) {
        if (atEnd()) {
            return failAtEnd();
        }
        if (peek() != expected) {
            return fail(start, "invalid literal");
        }
        ++pos_;
    }
    return true;
}

bool JsonReader::readNumber(Number& number) {
    const std::size_t start = pos_;
    const bool isNegative = !atEnd() && peek() == '-';
    if (isNegative) {
        ++pos_;
    }
    if (!atEnd() && peek() == '0') {
        ++pos_;
        if (!atEnd() && isDigit(peek())) {
            return fail(pos_, "leading zero in number");
        }
    } else if (!readDigits()) {
        return false;
    }
    bool isInteger = true;
    if (!atEnd() && peek() == '.') {
        isInteger = false;
        ++pos_;
        if (!readDigits()) {
            return false;
        }
    }
    if (!atEnd() && (peek() == 'e' || peek() == 'E')) {
        isInteger = false;
        ++pos_;
        if (!atEnd() && (peek() == '+' || peek() == '-')) {
            ++pos_;
        }
        if (!readDigits()) {
            return false;
        }
    }
    const std::string_view literal = text_.substr(start, pos_ - start);
    const std::string_view digits = literal.substr(isNegative ? 1 : 0);
    if (isInteger && digits.size() <= kMaxExactIntegerDigits) {
        std::uint64_t magnitude = 0;
        for (const char digit : digits) {
            magnitude = magnitude * 10 + static_cast<std::uint64_t>(digit - '0');
        }
        if (magnitude <= kMaxExactInteger) {
            const auto signedMagnitude = static_cast<std::int64_t>(magnitude);
            number = {true, isNegative ? -signedMagnitude : signedMagnitude, 0};
            return true;
        }
    }
    // strtod, because libc++ has no floating-point std::from_chars. Quorvane never calls
    // setlocale, so the "C" locale holds and '.' is the decimal point. The literal already
    // matches JSON's grammar, a subset of what strtod reads, so strtod consumes all of it and
    // rounds correctly; a copy gives it the terminator it needs.
    const std::string terminated(literal);
    const double real = std::strtod(terminated.c_str(), nullptr);
    if (std::isinf(real)) {
        return fail(start, "number out of range");
    }
    number = {false, 0, real};
    return true;
}

bool JsonReader::readDigits() {
    if (atEnd()) {
        return failAtEnd();
    }
    if (!isDigit(peek())) {
        return fail(pos_, "expected a digit");
    }
    while (!atEnd() && isDigit(peek())) {
        ++pos_;
    }
    return true;
}

bool JsonReader::readString(std::string& out) {
    ++pos_;  // the opening quote
    const char* const data = text_.data();
    const std::size_t size = text_.size();
    // Written through a pointer into room made beforehand. Escapes only shorten the text, so
    // the bytes up to the next quote are room enough, with one block more for the sixteen
    // bytes stored before they are looked at; only an escaped quote there needs more.
    char* to = out.data() + out.size();
    std::size_t roomUntil = pos_;
    const auto settle = [&out, &to] { out.resize(static_cast<std::size_t>(to - out.data())); };
    while (true) {
        if (pos_ >= roomUntil) {
            const std::size_t end = static_cast<std::size_t>(to - out.data());
            const void* quote = std::memchr(data + pos_, '"', size - pos_);
            roomUntil = quote != nullptr
                            ? static_cast<std::size_t>(static_cast<const char*>(quote) - data) + 1
                            : size;
            out.resize(end + (roomUntil - pos_) + ByteBlock::kSize);
            to = out.data() + end;
        }
        const std::size_t plain = JsonWriter::copyPlainStep(data + pos_, data + size, to);
        pos_ += plain;
        to += plain;
        if (plain == ByteBlock::kSize) {
            continue;
        }
        if (atEnd()) {
            settle();
            return failAtEnd();
        }
        const auto c = static_cast<unsigned char>(data[pos_]);
        if (c == '"') {
            ++pos_;
            settle();
            return true;
        }
        if (c == '\\' && pos_ + 1 < size && data[pos_ + 1] != 'u') {
            const char escaped = kEscaped[static_cast<unsigned char>(data[pos_ + 1])];
            if (escaped == 0) {
                settle();
                return fail(pos_, "invalid escape");
            }
            *to++ = escaped;
            pos_ += 2;
            continue;
        }
        if (c == '\\') {
            std::string character;
            if (!readEscape(character)) {
                settle();
                return false;
            }
            std::memcpy(to, character.data(), character.size());
            to += character.size();
            continue;
        }
        if (c < 0x20) {
            settle();
            return fail(pos_, "control character in string");
        }
        const std::string_view rest = text_.substr(pos_);
        const std::size_t length = utf8::sequenceLength(rest);
        if (length == 0) {
            settle();
            return utf8::isTruncatedSequence(rest) ? failAtEnd() : fail(pos_, "invalid UTF-8");
        }
        std::memcpy(to, rest.data(), length);
        pos_ += length;
        to += length;
    }
}

bool JsonReader::readEscape(std::string& out) {
    const std::size_t start = pos_;
    ++pos_;  // the backslash
    if (atEnd()) {
        return failAtEnd();
    }
    const char letter = peek();
    ++pos_;
    if (letter != 'u') {
        const char escaped = kEscaped[static_cast<unsigned char>(letter)];
        if (escaped == 0) {
            return fail(start, "invalid escape");
        }
        out += escaped;
        return true;
    }
    char32_t unit = 0;
    if (!readHexQuad(unit)) {
        return false;
    }
    if (unit >= 0xDC00 && unit <= 0xDFFF) {
        return fail(start, "unpaired surrogate");
    }
    if (unit >= 0xD800 && unit <= 0xDBFF) {
        // A high surrogate means something only together with the low one that must follow.
        for (const char expected : std::string_view("\\u")) {
            if (atEnd()) {
                return failAtEnd();
            }
            if (peek() != expected) {
                return fail(start, "unpaired surrogate");
            }
            ++pos_;
        }
        char32_t low = 0;
        if (!readHexQuad(low)) {
            return false;
        }
        if (low < 0xDC00 || low > 0xDFFF) {
            return fail(start, "unpaired surrogate");
        }
        unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    utf8::appendCodePoint(out, unit);
    return true;
}

bool JsonReader::readHexQuad(char32_t& unit) {
    unit = 0;
    for (int i = 0; i < 4; ++i) {
        if (atEnd()) {
            return failAtEnd();
        }
        const int digit = hexDigitValue(peek());
        if (digit < 0) {
            return fail(pos_, "expected a hex digit");
        }
        unit = unit * 16 + static_cast<char32_t>(digit);
        ++pos_;
    }
    return true;
}

bool JsonReader::skipKey() {
    skipWhitespace();
    if (atEnd()) {
        return failAtEnd();
    }
    if (peek() != '"') {
        return fail(pos_, "expected a string key");
    }
    std::string ignored;
    return readString(ignored) && expect(':', "expected ':'");
}

bool JsonReader::skipValue(std::size_t maxDepth) {
    // The open containers, innermost last: ']' or '}'. Kept on the heap so that hostile nesting
    // meets the depth limit, never the end of the call stack.
    std::vector<char> closers;
    std::string ignored;
    for (;;) {
        skipWhitespace();
        if (atEnd()) {
            return failAtEnd();
        }
        const char open = peek();
        if (open == '[' || open == '{') {
            if (closers.size() >= maxDepth) {
                return fail(pos_, "nested deeper than the depth limit");
            }
            ++pos_;
            const char close = open == '[' ? ']' : '}';
            if (skip(close)) {
                // An empty container is a complete value; fall through to what follows it.
            } else {
                closers.push_back(close);
                if (open == '{' && !skipKey()) {
                    return false;
                }
                continue;
            }
        } else {
            bool ok = false;
            Number number;
            ignored.clear();
            switch (open) {
                case '"':
                    ok = readString(ignored);
                    break;
                case 't':
                    ok = readLiteral("true");
                    break;
                case 'f':
                    ok = readLiteral("false");
                    break;
                case 'n':
                    ok = readLiteral("null");
                    break;
                default:
                    ok = open == '-' || isDigit(open) ? readNumber(number)
                                                      : fail(pos_, "unexpected character");
                    break;
            }
            if (!ok) {
                return false;
            }
        }
        // A value is complete: close every container that ends right after it.
        for (;;) {
            if (closers.empty()) {
                return true;
            }
            if (skip(',')) {
                if (closers.back() == '}' && !skipKey()) {
                    return false;
                }
                break;
            }
            if (!expect(closers.back(),
                        closers.back() == ']' ? "expected ',' or ']'" : "expected ',' or '}'")) {
                return false;
            }
            closers.pop_back();
        }
    }
}

}  // namespace quorvane
