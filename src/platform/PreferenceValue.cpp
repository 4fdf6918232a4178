#include "platform/PreferenceValue.hpp"

namespace quorvane {

const char* toString(PreferenceKind kind) {
    switch (kind) {
        case PreferenceKind::boolean:
            return "boolean";
        case PreferenceKind::integer:
            return "integer";
        case PreferenceKind::real:
            return "real";
        case PreferenceKind::string:
            return "string";
        case PreferenceKind::data:
            return "data";
        case PreferenceKind::date:
            return "date";
        case PreferenceKind::array:
            return "array";
        case PreferenceKind::dictionary:
            return "dictionary";
    }
    return "unknown";
}

PreferenceValue PreferenceValue::stringArray(const std::vector<std::string>& strings) {
    Array array;
    array.reserve(strings.size());
    for (const auto& s : strings) {
        array.emplace_back(s);
    }
    return PreferenceValue(std::move(array));
}

std::optional<double> PreferenceValue::number() const {
    if (const auto* i = integer()) {
        return static_cast<double>(*i);
    }
    if (const auto* r = real()) {
        return *r;
    }
    return std::nullopt;
}

std::optional<std::vector<std::string>> PreferenceValue::strings() const {
    const auto* elements = array();
    if (elements == nullptr) {
        return std::nullopt;
    }
    std::vector<std::string> result;
    result.reserve(elements->size());
    for (const auto& element : *elements) {
        const auto* s = element.string();
        if (s == nullptr) {
            return std::nullopt;
        }
        result.push_back(*s);
    }
    return result;
}

}  // namespace quorvane
