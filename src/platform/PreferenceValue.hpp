#pragma once

#include <concepts>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quorvane {

// The kinds of object a property list (and so the user defaults) can hold.
enum class PreferenceKind { boolean, integer, real, string, data, date, array, dictionary };

const char* toString(PreferenceKind kind);

// One stored preference object: a property-list value. Booleans are their own kind, never a
// number, so "present and a Boolean" can be told apart from "present and something else".
class PreferenceValue {
public:
    using Data = std::vector<std::uint8_t>;
    using Array = std::vector<PreferenceValue>;
    using Dictionary = std::map<std::string, PreferenceValue, std::less<>>;
    // Seconds since 2001-01-01 00:00:00 UTC, the platform's reference date.
    struct Date {
        double secondsSinceReferenceDate = 0;
        friend bool operator==(const Date&, const Date&) = default;
    };

    PreferenceValue(bool value) : value_(value) {}  // NOLINT: implicit by design
    // Character types are left out: the platform's own Boolean is an unsigned char, and it must
    // not quietly become an integer.
    template <std::integral T>
    requires(!std::same_as<T, bool> && !std::same_as<T, char> && !std::same_as<T, signed char> &&
             !std::same_as<T, unsigned char>) PreferenceValue(T value)
        : value_(static_cast<std::int64_t>(value)) {}                        // NOLINT
    PreferenceValue(double value) : value_(value) {}                         // NOLINT
    PreferenceValue(std::string value) : value_(std::move(value)) {}         // NOLINT
    PreferenceValue(std::string_view value) : value_(std::string(value)) {}  // NOLINT
    PreferenceValue(const char* value) : value_(std::string(value)) {}       // NOLINT
    PreferenceValue(Data value) : value_(std::move(value)) {}                // NOLINT
    PreferenceValue(Date value) : value_(value) {}                           // NOLINT
    PreferenceValue(Array value) : value_(std::move(value)) {}               // NOLINT
    PreferenceValue(Dictionary value) : value_(std::move(value)) {}          // NOLINT
    static PreferenceValue stringArray(const std::vector<std::string>& strings);

    PreferenceKind kind() const { return static_cast<PreferenceKind>(value_.index()); }

    const bool* boolean() const { return std::get_if<bool>(&value_); }
    const std::int64_t* integer() const { return std::get_if<std::int64_t>(&value_); }
    const double* real() const { return std::get_if<double>(&value_); }
    const std::string* string() const { return std::get_if<std::string>(&value_); }
    const Data* data() const { return std::get_if<Data>(&value_); }
    const Date* date() const { return std::get_if<Date>(&value_); }
    const Array* array() const { return std::get_if<Array>(&value_); }
    const Dictionary* dictionary() const { return std::get_if<Dictionary>(&value_); }

    // An integer or a real, as a number.
    std::optional<double> number() const;
    // Nothing unless every element is a string.
    std::optional<std::vector<std::string>> strings() const;

    friend bool operator==(const PreferenceValue&, const PreferenceValue&) = default;

private:
    // The order of the alternatives matches PreferenceKind.
    std::variant<bool, std::int64_t, double, std::string, Data, Date, Array, Dictionary> value_;
};

}  // namespace quorvane
