#include "base/Json.hpp"

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "base/Utf8.hpp"

namespace quorvane {
namespace {

// Up to this magnitude every integer has an exact double. Integer literals beyond it are read as
// reals, which is also what any other reader of the file would make of them.
constexpr std::uint64_t kMaxExactInteger = std::uint64_t{1} << 53;
// 2^53 has 16 digits, so a literal with more is beyond it whatever its digits.
constexpr std::size_t kMaxExactIntegerDigits = 16;

constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

// The two-character escapes: each letter after the backslash stands for the character at the
// same place in kEscaped. The writer never uses "\/", which only the reader must understand.
constexpr std::string_view kEscapeLetters = "\"\\/bfnrt";
constexpr std::string_view kEscaped = "\"\\/\b\f\n\r\t";

const char* findEscaped(char letter) {
    const std::size_t index = kEscapeLetters.find(letter);
    return index == std::string_view::npos ? nullptr : &kEscaped[index];
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isWhitespace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

int hexDigitValue(char c) {
    if (isDigit(c)) {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

class Parser {
public:
    Parser(std::string_view text, JsonLimits limits) : text_(text), limits_(limits) {}

    std::optional<Json> parseDocument();
    const JsonError& error() const { return error_; }

private:
    // Open arrays and objects live on this explicit stack rather than the call stack, so hostile
    // nesting runs into the depth limit, never into a stack overflow.
    struct Frame {
        Json container;
        std::string key;  // of the member whose value is being read, in an object
    };
    enum class Step { failed, opened, completed };

    bool atEnd() const { return pos_ >= text_.size(); }
    char peek() const { return text_[pos_]; }
    void skipWhitespace();
    bool fail(std::size_t offset, const char* message);
    bool failAtEnd() { return fail(text_.size(), "unexpected end of text"); }

    Step startValue(Json& value);
    bool parseKey(Frame& frame);
    bool parseScalar(Json& value);
    bool parseLiteral(std::string_view word, Json literal, Json& value);
    bool parseNumber(Json& value);
    bool parseDigits();
    bool parseString(std::string& out);
    bool parseEscape(std::string& out);
    bool parseHexQuad(char32_t& unit);

    std::string_view text_;
    JsonLimits limits_;
    std::size_t pos_ = 0;
    std::vector<Frame> stack_;
    JsonError error_;
};

std::optional<Json> Parser::parseDocument() {
    if (text_.size() > limits_.maxBytes) {
        fail(limits_.maxBytes, "text longer than the size limit");
        return std::nullopt;
    }
    skipWhitespace();
    Json value;
    for (;;) {
        const Step step = startValue(value);
        if (step == Step::failed) {
            return std::nullopt;
        }
        if (step == Step::opened) {
            continue;
        }
        // A value is complete: hand it to its container, and close every container that the
        // text closes right after it.
        for (;;) {
            if (stack_.empty()) {
                skipWhitespace();
                if (!atEnd()) {
                    fail(pos_, "unexpected text after the value");
                    return std::nullopt;
                }
                return value;
            }
            Frame& top = stack_.back();
            Json::Array* elements = top.container.array();
            if (elements != nullptr) {
                elements->push_back(std::move(value));
            } else {
                top.container.object()->emplace(std::move(top.key), std::move(value));
            }
            skipWhitespace();
            if (atEnd()) {
                failAtEnd();
                return std::nullopt;
            }
            if (peek() == ',') {
                ++pos_;
                skipWhitespace();
                if (elements == nullptr && !parseKey(top)) {
                    return std::nullopt;
                }
                break;
            }
            if (peek() != (elements != nullptr ? ']' : '}')) {
                fail(pos_, elements != nullptr ? "expected ',' or ']'" : "expected ',' or '}'");
                return std::nullopt;
            }
            ++pos_;
            value = std::move(top.container);
            stack_.pop_back();
        }
    }
}

void Parser::skipWhitespace() {
    while (!atEnd() && isWhitespace(peek())) {
        ++pos_;
    }
}

bool Parser::fail(std::size_t offset, const char* message) {
    error_.offset = offset;
    error_.message = message;
    return false;
}

// Reads a scalar whole, or opens an array or object: `opened` means its first element (or first
// member's value) comes next.
Parser::Step Parser::startValue(Json& value) {
    if (atEnd()) {
        failAtEnd();
        return Step::failed;
    }
    const char open = peek();
    if (open != '[' && open != '{') {
        return parseScalar(value) ? Step::completed : Step::failed;
    }
    if (stack_.size() >= limits_.maxDepth) {
        fail(pos_, "nested deeper than the depth limit");
        return Step::failed;
    }
    ++pos_;
    skipWhitespace();
    Json container = open == '[' ? Json::emptyArray() : Json::emptyObject();
    if (!atEnd() && peek() == (open == '[' ? ']' : '}')) {
        ++pos_;
        value = std::move(container);
        return Step::completed;
    }
    stack_.push_back({std::move(container), {}});
    if (open == '{' && !parseKey(stack_.back())) {
        return Step::failed;
    }
    return Step::opened;
}

// Reads a member's key and the colon after it.
bool Parser::parseKey(Frame& frame) {
    if (atEnd()) {
        return failAtEnd();
    }
    if (peek() != '"') {
        return fail(pos_, "expected a string key");
    }
    const std::size_t keyOffset = pos_;
    frame.key.clear();
    if (!parseString(frame.key)) {
        return false;
    }
    if (frame.container.object()->contains(frame.key)) {
        return fail(keyOffset, "duplicate key");
    }
    skipWhitespace();
    if (atEnd()) {
        return failAtEnd();
    }
    if (peek() != ':') {
        return fail(pos_, "expected ':'");
    }
    ++pos_;
    skipWhitespace();
    return true;
}

bool Parser::parseScalar(Json& value) {
    switch (peek()) {
        case '"': {
            std::string text;
            if (!parseString(text)) {
                return false;
            }
            value = Json(std::move(text));
            return true;
        }
        case 't':
            return parseLiteral("true", Json(true), value);
        case 'f':
            return parseLiteral("false", Json(false), value);
        case 'n':
            return parseLiteral("null", Json(), value);
        default:
            if (peek() == '-' || isDigit(peek())) {
                return parseNumber(value);
            }
            return fail(pos_, "unexpected character");
    }
}

bool Parser::parseLiteral(std::string_view word, Json literal, Json& value) {
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
    value = std::move(literal);
    return true;
}

bool Parser::parseNumber(Json& value) {
    const std::size_t start = pos_;
    const bool isNegative = peek() == '-';
    if (isNegative) {
        ++pos_;
    }
    if (!atEnd() && peek() == '0') {
        ++pos_;
        if (!atEnd() && isDigit(peek())) {
            return fail(pos_, "leading zero in number");
        }
    } else if (!parseDigits()) {
        return false;
    }
    bool isInteger = true;
    if (!atEnd() && peek() == '.') {
        isInteger = false;
        ++pos_;
        if (!parseDigits()) {
            return false;
        }
    }
    if (!atEnd() && (peek() == 'e' || peek() == 'E')) {
        isInteger = false;
        ++pos_;
        if (!atEnd() && (peek() == '+' || peek() == '-')) {
            ++pos_;
        }
        if (!parseDigits()) {
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
            value = Json(isNegative ? -signedMagnitude : signedMagnitude);
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
    value = Json(real);
    return true;
}

bool Parser::parseDigits() {
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

bool Parser::parseString(std::string& out) {
    ++pos_;  // the opening quote
    while (!atEnd()) {
        const std::size_t runStart = pos_;
        while (!atEnd()) {
            const auto c = static_cast<unsigned char>(peek());
            if (c == '"' || c == '\\' || c < 0x20 || c >= 0x80) {
                break;
            }
            ++pos_;
        }
        out.append(text_.substr(runStart, pos_ - runStart));
        if (atEnd()) {
            break;
        }
        const auto c = static_cast<unsigned char>(peek());
        if (c == '"') {
            ++pos_;
            return true;
        }
        if (c == '\\') {
            if (!parseEscape(out)) {
                return false;
            }
            continue;
        }
        if (c < 0x20) {
            return fail(pos_, "control character in string");
        }
        const std::string_view rest = text_.substr(pos_);
        const std::size_t length = utf8::sequenceLength(rest);
        if (length == 0) {
            return utf8::isTruncatedSequence(rest) ? failAtEnd() : fail(pos_, "invalid UTF-8");
        }
        out.append(rest.substr(0, length));
        pos_ += length;
    }
    return failAtEnd();
}

bool Parser::parseEscape(std::string& out) {
    const std::size_t start = pos_;
    ++pos_;  // the backslash
    if (atEnd()) {
        return failAtEnd();
    }
    const char letter = peek();
    ++pos_;
    if (letter != 'u') {
        const char* const escaped = findEscaped(letter);
        if (escaped == nullptr) {
            return fail(start, "invalid escape");
        }
        out += *escaped;
        return true;
    }
    char32_t unit = 0;
    if (!parseHexQuad(unit)) {
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
        if (!parseHexQuad(low)) {
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

bool Parser::parseHexQuad(char32_t& unit) {
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

void writeString(std::string& out, std::string_view text) {
    out += '"';
    std::size_t i = 0;
    while (i < text.size()) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x80) {
            const std::size_t length = utf8::sequenceLength(text.substr(i));
            out.append(length == 0 ? kReplacementCharacter : text.substr(i, length));
            i += length == 0 ? 1 : length;
            continue;
        }
        if (c == '"' || c == '\\' || c < 0x20) {
            out += '\\';
            const std::size_t index = kEscaped.find(static_cast<char>(c));
            if (index != std::string_view::npos) {
                out += kEscapeLetters[index];
            } else {
                out += "u00";
                out += kHexDigits[c >> 4];
                out += kHexDigits[c & 0x0F];
            }
        } else {
            out += static_cast<char>(c);
        }
        ++i;
    }
    out += '"';
}

void writeInteger(std::string& out, std::int64_t value) {
    std::array<char, 24> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    out.append(buffer.data(), result.ptr);
}

void writeReal(std::string& out, double value) {
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

void writeValue(std::string& out, const Json& value, Json::Layout layout, std::size_t depth) {
    const bool isPretty = layout == Json::Layout::pretty;
    const auto newLine = [&out, isPretty](std::size_t indent) {
        if (isPretty) {
            out += '\n';
            out.append(indent * 2, ' ');
        }
    };
    switch (value.kind()) {
        case Json::Kind::null:
            out += "null";
            break;
        case Json::Kind::boolean:
            out += *value.boolean() ? "true" : "false";
            break;
        case Json::Kind::integer:
            writeInteger(out, *value.integer());
            break;
        case Json::Kind::real:
            writeReal(out, *value.number());
            break;
        case Json::Kind::string:
            writeString(out, *value.string());
            break;
        case Json::Kind::array: {
            const Json::Array& elements = *value.array();
            out += '[';
            for (std::size_t i = 0; i < elements.size(); ++i) {
                out += i == 0 ? "" : ",";
                newLine(depth + 1);
                writeValue(out, elements[i], layout, depth + 1);
            }
            if (!elements.empty()) {
                newLine(depth);
            }
            out += ']';
            break;
        }
        case Json::Kind::object: {
            const Json::Object& members = *value.object();
            out += '{';
            bool isFirst = true;
            for (const auto& [key, member] : members) {
                out += isFirst ? "" : ",";
                isFirst = false;
                newLine(depth + 1);
                writeString(out, key);
                out += isPretty ? ": " : ":";
                writeValue(out, member, layout, depth + 1);
            }
            if (!members.empty()) {
                newLine(depth);
            }
            out += '}';
            break;
        }
    }
}

}  // namespace

std::optional<std::int64_t> Json::integer() const {
    if (const auto* value = std::get_if<std::int64_t>(&value_)) {
        return *value;
    }
    return std::nullopt;
}

std::optional<double> Json::number() const {
    if (const auto* value = std::get_if<double>(&value_)) {
        return *value;
    }
    if (const auto* value = std::get_if<std::int64_t>(&value_)) {
        return static_cast<double>(*value);
    }
    return std::nullopt;
}

const Json* Json::find(std::string_view key) const {
    const Object* members = object();
    if (members == nullptr) {
        return nullptr;
    }
    const auto it = members->find(key);
    return it == members->end() ? nullptr : &it->second;
}

void Json::set(std::string key, Json value) {
    if (isNull()) {
        value_ = Object{};
    }
    Object* members = object();
    assert(members != nullptr && "set() on a value that is not an object");
    if (members != nullptr) {
        members->insert_or_assign(std::move(key), std::move(value));
    }
}

void Json::push(Json value) {
    if (isNull()) {
        value_ = Array{};
    }
    Array* elements = array();
    assert(elements != nullptr && "push() on a value that is not an array");
    if (elements != nullptr) {
        elements->push_back(std::move(value));
    }
}

std::optional<Json> Json::parse(std::string_view text, JsonError* error, JsonLimits limits) {
    Parser parser(text, limits);
    std::optional<Json> result = parser.parseDocument();
    if (!result && error != nullptr) {
        *error = parser.error();
    }
    return result;
}

std::string Json::serialize(Layout layout) const {
    std::string out;
    writeValue(out, *this, layout, 0);
    return out;
}

bool operator==(const Json& a, const Json& b) {
    return a.value_ == b.value_;
}

}  // namespace quorvane
