#include "platform/DictionaryFields.hpp"

#include <cmath>
#include <limits>

namespace quorvane {

const PreferenceValue* field(const PreferenceValue::Dictionary& fields, std::string_view key) {
    const auto found = fields.find(key);
    return found != fields.end() ? &found->second : nullptr;
}

std::optional<std::string> stringField(const PreferenceValue::Dictionary& fields,
                                       std::string_view key) {
    const auto* value = field(fields, key);
    const auto* text = value ? value->string() : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

std::optional<int> integerField(const PreferenceValue::Dictionary& fields, std::string_view key) {
    const auto* value = field(fields, key);
    if (value == nullptr) {
        return std::nullopt;
    }
    if (const auto* flag = value->boolean()) {
        return *flag ? 1 : 0;
    }
    const auto number = value->number();
    if (!number) {
        return std::nullopt;
    }
    const double whole = std::trunc(*number);
    if (!(whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max())) {
        return std::nullopt;
    }
    return static_cast<int>(whole);
}

std::optional<bool> booleanField(const PreferenceValue::Dictionary& fields, std::string_view key) {
    const auto* value = field(fields, key);
    if (value == nullptr) {
        return std::nullopt;
    }
    if (const auto* flag = value->boolean()) {
        return *flag;
    }
    const auto number = value->number();
    return number ? std::optional(*number != 0) : std::nullopt;
}

}  // namespace quorvane
