#include "base/Json.hpp"

#include <cassert>

#include "base/JsonReader.hpp"
#include "base/JsonWriter.hpp"

namespace quorvane {
namespace {

class Parser {
public:
    Parser(std::string_view text, JsonLimits limits)
        : text_(text), reader_(text), limits_(limits) {}

    std::optional<Json> parseDocument();
    const JsonError& error() const { return reader_.error(); }

private:
    // Open arrays and objects live on this explicit stack rather than the call stack, so hostile
    // nesting runs into the depth limit, never into a stack overflow.
    struct Frame {
        Json container;
        std::string key;  // of the member whose value is being read, in an object
    };
    enum class Step { failed, opened, completed };

    bool atEnd() const { return reader_.atEnd(); }
    char peek() const { return reader_.peek(); }
    bool fail(std::size_t offset, const char* message) { return reader_.fail(offset, message); }
    bool failAtEnd() { return reader_.failAtEnd(); }

    Step startValue(Json& value);
    bool parseKey(Frame& frame);
    bool parseScalar(Json& value);

    std::string_view text_;
    JsonReader reader_;
    JsonLimits limits_;
    std::vector<Frame> stack_;
};

std::optional<Json> Parser::parseDocument() {
    if (text_.size() > limits_.maxBytes) {
        fail(limits_.maxBytes, "text longer than the size limit");
        return std::nullopt;
    }
    reader_.skipWhitespace();
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
                reader_.skipWhitespace();
                if (!atEnd()) {
                    fail(reader_.offset(), "unexpected text after the value");
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
            if (reader_.skip(',')) {
                reader_.skipWhitespace();
                if (elements == nullptr && !parseKey(top)) {
                    return std::nullopt;
                }
                break;
            }
            if (!reader_.expect(elements != nullptr ? ']' : '}', elements != nullptr
                                                                     ? "expected ',' or ']'"
                                                                     : "expected ',' or '}'")) {
                return std::nullopt;
            }
            value = std::move(top.container);
            stack_.pop_back();
        }
    }
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
        fail(reader_.offset(), "nested deeper than the depth limit");
        return Step::failed;
    }
    reader_.skip(open);
    Json container = open == '[' ? Json::emptyArray() : Json::emptyObject();
    if (reader_.skip(open == '[' ? ']' : '}')) {
        value = std::move(container);
        return Step::completed;
    }
    reader_.skipWhitespace();
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
        return fail(reader_.offset(), "expected a string key");
    }
    const std::size_t keyOffset = reader_.offset();
    frame.key.clear();
    if (!reader_.readString(frame.key)) {
        return false;
    }
    if (frame.container.object()->contains(frame.key)) {
        return fail(keyOffset, "duplicate key");
    }
    if (!reader_.expect(':', "expected ':'")) {
        return false;
    }
    reader_.skipWhitespace();
    return true;
}

bool Parser::parseScalar(Json& value) {
    switch (peek()) {
        case '"': {
            std::string text;
            if (!reader_.readString(text)) {
                return false;
            }
            value = Json(std::move(text));
            return true;
        }
        case 't':
            value = Json(true);
            return reader_.readLiteral("true");
        case 'f':
            value = Json(false);
            return reader_.readLiteral("false");
        case 'n':
            value = Json();
            return reader_.readLiteral("null");
        default:
            if (peek() == '-' || (peek() >= '0' && peek() <= '9')) {
                JsonReader::Number number;
                if (!reader_.readNumber(number)) {
                    return false;
                }
                value = number.isInteger ? Json(number.integer) : Json(number.real);
                return true;
            }
            return fail(reader_.offset(), "unexpected character");
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
            JsonWriter::integer(out, *value.integer());
            break;
        case Json::Kind::real:
            JsonWriter::real(out, *value.number());
            break;
        case Json::Kind::string:
            JsonWriter::string(out, *value.string());
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
                JsonWriter::string(out, key);
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
