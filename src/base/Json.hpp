#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "base/JsonError.hpp"
#include "base/JsonLimits.hpp"

namespace quorvane {

// A JSON value, and the one reader and writer behind every file Quorvane keeps.
//
// The reader is strict on purpose: RFC 8259 and nothing more, well-formed UTF-8, no duplicate
// keys, bounded depth and size. Any file it reads may have been damaged by a crash, a full disk
// or a hand edit, and an error with its byte offset is worth more than a guess at what was
// meant. The writer produces only what the reader accepts, and a real it writes reads back as
// the same real, bit for bit.
class Json {
public:
    using Array = std::vector<Json>;
    // Keys are unique and kept in byte order, so the same data always serializes the same way.
    using Object = std::map<std::string, Json, std::less<>>;

    enum class Kind { null, boolean, integer, real, string, array, object };
    enum class Layout {
        compact,
        // Two-space indentation, one member per line, for files people may open. No final
        // newline; the caller writing the file adds one.
        pretty,
    };

    Json() = default;
    Json(std::nullptr_t) {}  // NOLINT: implicit by design, like the rest
    // Only a real bool: a pointer or a number must not quietly become one.
    template <std::same_as<bool> T>
    Json(T value) : value_(value) {}  // NOLINT
    template <std::integral T>
    requires(!std::same_as<T, bool>) Json(T value) : value_(fromIntegral(value)) {}  // NOLINT
    // A lone character is far more likely meant as a string than as its code.
    Json(char) = delete;
    Json(double value) : value_(value) {}                         // NOLINT
    Json(std::string value) : value_(std::move(value)) {}         // NOLINT
    Json(std::string_view value) : value_(std::string(value)) {}  // NOLINT
    Json(const char* value) : value_(std::string(value)) {}       // NOLINT
    Json(Array value) : value_(std::move(value)) {}               // NOLINT
    Json(Object value) : value_(std::move(value)) {}              // NOLINT
    // Named apart from array() and object(), which read the value: C++ cannot overload a static
    // and a non-static member with the same parameters.
    static Json emptyArray() { return Json(Array{}); }
    static Json emptyObject() { return Json(Object{}); }

    Kind kind() const { return static_cast<Kind>(value_.index()); }
    bool isNull() const { return kind() == Kind::null; }

    // Each read gives nothing when the value is of another kind, so a file of the wrong shape is
    // handled where it is read rather than by an exception.
    const bool* boolean() const { return std::get_if<bool>(&value_); }
    std::optional<std::int64_t> integer() const;
    // An integer or a real, as a double.
    std::optional<double> number() const;
    const std::string* string() const { return std::get_if<std::string>(&value_); }
    const Array* array() const { return std::get_if<Array>(&value_); }
    const Object* object() const { return std::get_if<Object>(&value_); }
    Array* array() { return std::get_if<Array>(&value_); }
    Object* object() { return std::get_if<Object>(&value_); }
    // The member named `key`; nullptr when absent or when this is not an object.
    const Json* find(std::string_view key) const;

    // Adds or replaces a member. A null becomes an empty object first; calling this on any
    // other kind is a programming error (asserted, otherwise ignored).
    void set(std::string key, Json value);
    // Appends an element. A null becomes an empty array first; other kinds as for set().
    void push(Json value);

    // Parses exactly one value, with optional whitespace around it. On failure, `error` (when
    // given) says why and where. The depth limit also bounds the recursion needed later to copy,
    // compare, write or destroy the result.
    static std::optional<Json> parse(std::string_view text, JsonError* error = nullptr,
                                     JsonLimits limits = {});

    // Reals are written in the shortest form that reads back identically, always with a '.' or
    // an exponent so that they stay reals; NaN and infinities, which JSON cannot express, are
    // written as null. Integers beyond ±2^53 read back as reals. Strings are written as UTF-8
    // with only '"', '\' and control characters escaped; any ill-formed byte in them becomes
    // U+FFFD so that the output always parses.
    std::string serialize(Layout layout = Layout::compact) const;

    // Kinds must match: the integer 1 and the real 1.0 are different values.
    friend bool operator==(const Json& a, const Json& b);

private:
    using Value =
        std::variant<std::monostate, bool, std::int64_t, double, std::string, Array, Object>;

    template <std::integral T>
    static Value fromIntegral(T value) {
        // Only the largest unsigned values do not fit; they are kept as the real they are
        // closest to, as the reader would keep such a literal.
        if constexpr (std::is_unsigned_v<T> && sizeof(T) >= sizeof(std::int64_t)) {
            if (value > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
                return static_cast<double>(value);
            }
        }
        return static_cast<std::int64_t>(value);
    }

    Value value_;
};

}  // namespace quorvane
