#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/JsonError.hpp"

namespace quorvane {

// The token half of the JSON reader, for code that walks a document of a known shape without
// building a Json tree: as strict as Json::parse (RFC 8259, well-formed UTF-8) and, like it,
// reporting the first error with its byte offset. Every read starts at the current position,
// which whitespace may precede only where skipWhitespace() or skip() was called.
class JsonReader {
public:
    struct Number {
        bool isInteger = false;
        std::int64_t integer = 0;
        double real = 0;
        double value() const { return isInteger ? static_cast<double>(integer) : real; }
    };

    explicit JsonReader(std::string_view text) : text_(text) {}

    std::size_t offset() const { return pos_; }
    bool atEnd() const { return pos_ >= text_.size(); }
    // The next byte; only when not at the end.
    char peek() const { return text_[pos_]; }
    void skipWhitespace();
    // Skips whitespace, then consumes `c` if it comes next.
    bool skip(char c);
    // Skips whitespace, then consumes `c`, failing with `message` when something else is next.
    bool expect(char c, const char* message);

    // A string value, its content appended to `out`; the next byte must be its opening quote.
    bool readString(std::string& out);
    // The next byte must start the number. Integers beyond ±2^53 read as reals.
    bool readNumber(Number& number);
    // "true", "false" or "null", whichever `word` is.
    bool readLiteral(std::string_view word);
    // Any one value, arrays and objects nested at most `maxDepth` deep.
    bool skipValue(std::size_t maxDepth);

    // Records the error and answers false, so that callers can `return fail(...)`.
    bool fail(std::size_t offset, const char* message);
    bool failAtEnd() { return fail(text_.size(), "unexpected end of text"); }
    const JsonError& error() const { return error_; }

private:
    bool readDigits();
    // A member's key and its colon, in an object being skipped.
    bool skipKey();
    bool readEscape(std::string& out);
    bool readHexQuad(char32_t& unit);

    std::string_view text_;
    std::size_t pos_ = 0;
    JsonError error_;
};

}  // namespace quorvane
