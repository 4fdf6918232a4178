#pragma once

#include <optional>
#include <string_view>

#include "platform/Preferences.hpp"

namespace quorvane {

// The standard user defaults of com.quorvane.app, read and written through CFPreferences with
// the application id spelled out. Inside the app that is its own domain; the command-line tool
// names it explicitly so both work on the same store rather than the tool's own.
class MacPreferences final : public Preferences {
public:
    static constexpr const char* kApplicationID = "com.quorvane.app";

    std::optional<PreferenceValue> object(std::string_view key) const override;
    // Each write is synchronized at once, so a running app and the command line see each
    // other's changes.
    void set(std::string_view key, PreferenceValue value) override;
    void remove(std::string_view key) override;
};

}  // namespace quorvane
