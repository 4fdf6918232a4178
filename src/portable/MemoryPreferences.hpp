#pragma once

#include <map>
#include <string>

#include "platform/Preferences.hpp"

namespace quorvane {

// Preferences held in memory: the store of tests, and the working copy of the file store.
class MemoryPreferences : public Preferences {
public:
    using Values = std::map<std::string, PreferenceValue, std::less<>>;

    MemoryPreferences() = default;
    explicit MemoryPreferences(Values values) : values_(std::move(values)) {}

    std::optional<PreferenceValue> object(std::string_view key) const override;
    void set(std::string_view key, PreferenceValue value) override;
    void remove(std::string_view key) override;

    const Values& values() const { return values_; }

private:
    Values values_;
};

}  // namespace quorvane
