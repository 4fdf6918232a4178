#include "platform/Preferences.hpp"

namespace quorvane {

std::optional<PreferenceKind> Preferences::kind(std::string_view key) const {
    const auto value = object(key);
    return value ? std::optional(value->kind()) : std::nullopt;
}

std::optional<bool> Preferences::boolean(std::string_view key) const {
    const auto value = object(key);
    return value && value->boolean() ? std::optional(*value->boolean()) : std::nullopt;
}

std::optional<std::int64_t> Preferences::integer(std::string_view key) const {
    const auto value = object(key);
    return value && value->integer() ? std::optional(*value->integer()) : std::nullopt;
}

std::optional<double> Preferences::number(std::string_view key) const {
    const auto value = object(key);
    return value ? value->number() : std::nullopt;
}

std::optional<std::string> Preferences::string(std::string_view key) const {
    const auto value = object(key);
    return value && value->string() ? std::optional(*value->string()) : std::nullopt;
}

std::optional<PreferenceValue::Data> Preferences::data(std::string_view key) const {
    const auto value = object(key);
    return value && value->data() ? std::optional(*value->data()) : std::nullopt;
}

std::optional<std::vector<std::string>> Preferences::stringArray(std::string_view key) const {
    const auto value = object(key);
    return value ? value->strings() : std::nullopt;
}

}  // namespace quorvane
