#include "portable/MemoryPreferences.hpp"

namespace quorvane {

std::optional<PreferenceValue> MemoryPreferences::object(std::string_view key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

void MemoryPreferences::set(std::string_view key, PreferenceValue value) {
    values_.insert_or_assign(std::string(key), std::move(value));
}

void MemoryPreferences::remove(std::string_view key) {
    if (const auto found = values_.find(key); found != values_.end()) {
        values_.erase(found);
    }
}

}  // namespace quorvane
