#include "tools/keyboard/SystemModifierMappings.hpp"

#include <charconv>
#include <cmath>

namespace quorvane {

namespace {

// A decimal number up to the next '-' or the end; advances past the '-'.
std::optional<std::int64_t> takeNumber(std::string_view& text) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end == text.data() ||
        (end != text.data() + text.size() && *end != '-')) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (!text.empty()) {
        text.remove_prefix(1);
    }
    return value;
}

std::optional<std::int64_t> integer(const PreferenceValue::Dictionary& entry,
                                    std::string_view key) {
    const auto found = entry.find(key);
    if (found == entry.end()) {
        return std::nullopt;
    }
    if (const auto* value = found->second.integer()) {
        return *value;
    }
    // Numbers that went through a real keep their value when it is whole.
    if (const auto* value = found->second.real();
        value && std::trunc(*value) == *value && std::abs(*value) < 9.0e15) {
        return static_cast<std::int64_t>(*value);
    }
    return std::nullopt;
}

}  // namespace

SystemModifierMappings SystemModifierMappings::collect(const std::vector<std::string>& keys,
                                                       const ValueOf& valueOf,
                                                       const IsBuiltIn& isBuiltIn) {
    SystemModifierMappings result;
    for (const auto& key : keys) {
        if (!key.starts_with(kKeyPrefix)) {
            continue;
        }
        std::string_view ids = std::string_view(key).substr(kKeyPrefix.size());
        const auto vendor = takeNumber(ids);
        const auto product = vendor ? takeNumber(ids) : std::nullopt;
        if (!product) {
            continue;
        }
        const auto value = valueOf(key);
        const auto* entries = value ? value->array() : nullptr;
        if (!entries) {
            continue;
        }
        const auto builtIn = isBuiltIn(*vendor, *product);
        if (!builtIn) {
            continue;
        }
        auto& table = *builtIn ? result.builtIn : result.external;
        for (const auto& element : *entries) {
            const auto* entry = element.dictionary();
            if (!entry) {
                continue;
            }
            const auto source = integer(*entry, kSourceKey);
            const auto destination = integer(*entry, kDestinationKey);
            if (source && destination) {
                table.push_back({*source, *destination});
            }
        }
    }
    return result;
}

}  // namespace quorvane
