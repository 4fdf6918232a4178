#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// The application's own preference domain (on macOS, the standard user defaults of
// com.quorvane.app). Implementations store and return objects; the typed reads below answer
// nothing when a key is absent or holds another kind, so every caller falls back to its default.
class Preferences {
public:
    virtual ~Preferences() = default;

    virtual std::optional<PreferenceValue> object(std::string_view key) const = 0;
    virtual void set(std::string_view key, PreferenceValue value) = 0;
    virtual void remove(std::string_view key) = 0;
    // Why the last change could not be stored; empty when every change was.
    virtual std::string lastError() const { return {}; }

    std::optional<PreferenceKind> kind(std::string_view key) const;
    std::optional<bool> boolean(std::string_view key) const;
    std::optional<std::int64_t> integer(std::string_view key) const;
    // An integer or a real.
    std::optional<double> number(std::string_view key) const;
    std::optional<std::string> string(std::string_view key) const;
    std::optional<PreferenceValue::Data> data(std::string_view key) const;
    // Nothing unless the object is an array of strings only.
    std::optional<std::vector<std::string>> stringArray(std::string_view key) const;
};

}  // namespace quorvane
