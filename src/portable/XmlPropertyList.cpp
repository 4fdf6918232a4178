#include "portable/XmlPropertyList.hpp"

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "base/Base64.hpp"

namespace quorvane {

namespace {

constexpr int kMaximumDepth = 256;

struct Failure {
    std::string reason;
};

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text) {}

    PreferenceValue document() {
        skipProlog();
        const Tag plist = tag();
        if (plist.name != "plist" || plist.closing || plist.empty) {
            fail("expected <plist>");
        }
        PreferenceValue value = element(tag(), 0);
        if (const Tag end = tag(); end.name != "plist" || !end.closing) {
            fail("expected </plist>");
        }
        skipSpace();
        if (position_ != text_.size()) {
            fail("text after </plist>");
        }
        return value;
    }

    std::size_t position() const { return position_; }

private:
    struct Tag {
        std::string name;
        bool closing = false;
        bool empty = false;
    };

    [[noreturn]] void fail(const std::string& reason) { throw Failure{reason}; }

    void skipSpace() {
        while (position_ < text_.size() &&
               std::isspace(static_cast<unsigned char>(text_[position_]))) {
            ++position_;
        }
    }

    void skipPast(std::string_view marker) {
        const auto found = text_.find(marker, position_);
        if (found == std::string_view::npos) {
            fail("unterminated markup");
        }
        position_ = found + marker.size();
    }

    // The XML declaration, comments and the document type come before the root.
    void skipProlog() {
        for (;;) {
            skipSpace();
            const std::string_view rest = text_.substr(position_);
            if (rest.starts_with("<?")) {
                skipPast("?>");
            } else if (rest.starts_with("<!--")) {
                skipPast("-->");
            } else if (rest.starts_with("<!")) {
                skipPast(">");
            } else {
                return;
            }
        }
    }

    Tag tag() {
        skipProlog();
        if (position_ >= text_.size() || text_[position_] != '<') {
            fail("expected a tag");
        }
        const auto end = text_.find('>', position_);
        if (end == std::string_view::npos) {
            fail("unterminated tag");
        }
        std::string_view inside = text_.substr(position_ + 1, end - position_ - 1);
        position_ = end + 1;
        Tag result;
        if (inside.starts_with("/")) {
            result.closing = true;
            inside.remove_prefix(1);
        }
        if (inside.ends_with("/")) {
            result.empty = true;
            inside.remove_suffix(1);
        }
        const auto nameEnd = inside.find_first_of(" \t\r\n");
        result.name = std::string(inside.substr(0, nameEnd));
        if (result.name.empty()) {
            fail("a tag without a name");
        }
        return result;
    }

    // The raw text up to the closing tag `name`.
    std::string text(const Tag& open) {
        if (open.empty) {
            return {};
        }
        const std::string closing = "</" + open.name + ">";
        const auto end = text_.find(closing, position_);
        if (end == std::string_view::npos) {
            fail("missing " + closing);
        }
        std::string raw(text_.substr(position_, end - position_));
        position_ = end + closing.size();
        if (raw.find('<') != std::string::npos) {
            fail("markup inside <" + open.name + ">");
        }
        return unescape(raw);
    }

    std::string unescape(const std::string& raw) {
        std::string out;
        for (std::size_t i = 0; i < raw.size(); ++i) {
            if (raw[i] != '&') {
                out += raw[i];
                continue;
            }
            const auto semicolon = raw.find(';', i);
            if (semicolon == std::string::npos) {
                fail("an unterminated entity");
            }
            const std::string entity = raw.substr(i + 1, semicolon - i - 1);
            i = semicolon;
            if (entity == "lt") {
                out += '<';
            } else if (entity == "gt") {
                out += '>';
            } else if (entity == "amp") {
                out += '&';
            } else if (entity == "quot") {
                out += '"';
            } else if (entity == "apos") {
                out += '\'';
            } else if (entity.size() > 1 && entity[0] == '#') {
                const bool hex = entity[1] == 'x';
                char* stop = nullptr;
                const std::string digits = entity.substr(hex ? 2 : 1);
                const unsigned long code = std::strtoul(digits.c_str(), &stop, hex ? 16 : 10);
                if (digits.empty() || *stop != '\0' || code == 0 || code > 0x10FFFF ||
                    (code >= 0xD800 && code <= 0xDFFF)) {
                    fail("a bad character reference");
                }
                appendUtf8(out, static_cast<char32_t>(code));
            } else {
                fail("an unknown entity &" + entity + ";");
            }
        }
        return out;
    }

    static void appendUtf8(std::string& out, char32_t code) {
        if (code < 0x80) {
            out += static_cast<char>(code);
        } else if (code < 0x800) {
            out += static_cast<char>(0xC0 | (code >> 6));
            out += static_cast<char>(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            out += static_cast<char>(0xE0 | (code >> 12));
            out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (code & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (code >> 18));
            out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (code & 0x3F));
        }
    }

    PreferenceValue element(const Tag& open, int depth) {
        if (open.closing) {
            fail("unexpected </" + open.name + ">");
        }
        if (depth > kMaximumDepth) {
            fail("nested too deeply");
        }
        const std::string& name = open.name;
        if (name == "true" || name == "false") {
            if (!open.empty) {
                closeTag(name);
            }
            return name == "true";
        }
        if (name == "string") {
            return text(open);
        }
        if (name == "integer") {
            const std::string digits = text(open);
            char* stop = nullptr;
            errno = 0;
            const long long value = std::strtoll(digits.c_str(), &stop, 10);
            if (digits.empty() || *stop != '\0' || errno != 0) {
                fail("a bad integer");
            }
            return static_cast<std::int64_t>(value);
        }
        if (name == "real") {
            const std::string digits = text(open);
            char* stop = nullptr;
            const double value = std::strtod(digits.c_str(), &stop);
            if (digits.empty() || *stop != '\0') {
                fail("a bad real");
            }
            return value;
        }
        if (name == "data") {
            std::string compact;
            for (const char c : text(open)) {
                if (!std::isspace(static_cast<unsigned char>(c))) {
                    compact += c;
                }
            }
            auto bytes = base64::decode(compact);
            if (!bytes) {
                fail("bad base64 in <data>");
            }
            return PreferenceValue(std::move(*bytes));
        }
        if (name == "date") {
            return PreferenceValue::Date{date(text(open))};
        }
        if (name == "array") {
            PreferenceValue::Array array;
            if (!open.empty) {
                for (Tag next = tag(); !next.closing; next = tag()) {
                    array.push_back(element(next, depth + 1));
                }
            }
            return array;
        }
        if (name == "dict") {
            PreferenceValue::Dictionary dictionary;
            if (!open.empty) {
                for (Tag key = tag(); !key.closing; key = tag()) {
                    if (key.name != "key") {
                        fail("expected <key> in <dict>");
                    }
                    std::string keyText = text(key);
                    dictionary.insert_or_assign(std::move(keyText), element(tag(), depth + 1));
                }
            }
            return dictionary;
        }
        fail("unknown element <" + name + ">");
    }

    void closeTag(const std::string& name) {
        if (const Tag end = tag(); !end.closing || end.name != name) {
            fail("expected </" + name + ">");
        }
    }

    // "2001-01-01T00:00:00Z", the only form property lists write.
    double date(const std::string& value) {
        int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
        char zone = 0;
        if (std::sscanf(value.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%c", &year, &month, &day, &hour,
                        &minute, &second, &zone) != 7 ||
            zone != 'Z' || month < 1 || month > 12 || day < 1 || day > 31) {
            fail("a bad date");
        }
        // Days from the civil date, so no time zone of this machine comes into it.
        const int y = year - (month <= 2 ? 1 : 0);
        const int era = (y >= 0 ? y : y - 399) / 400;
        const int yearOfEra = y - era * 400;
        const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
        const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
        const long long days = static_cast<long long>(era) * 146097 + dayOfEra - 719468;
        constexpr long long kReferenceDays = 11323;  // 2001-01-01 after 1970-01-01
        return static_cast<double>((days - kReferenceDays) * 86400 + hour * 3600 + minute * 60 +
                                   second);
    }

    std::string_view text_;
    std::size_t position_ = 0;
};

}  // namespace

std::optional<PreferenceValue> XmlPropertyList::parse(std::string_view text, std::string& error) {
    if (text.starts_with("bplist")) {
        error = "a binary property list, which only macOS reads";
        return std::nullopt;
    }
    Parser parser(text);
    try {
        return parser.document();
    } catch (const Failure& failure) {
        error = failure.reason + " at offset " + std::to_string(parser.position());
        return std::nullopt;
    }
}

}  // namespace quorvane
