#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/PreferenceValue.hpp"
#include "tools/keyboard/KeyMappingPair.hpp"

namespace quorvane {

// The modifier-key changes the user made in System Settings › Keyboard › Modifier Keys. The
// system keeps one list per keyboard in the global domain of the current host; a user key
// mapping of our own replaces the keyboard's whole table, so these are merged back in.
struct SystemModifierMappings {
    // Followed by "<vendor id>-<product id>-<something>", all decimal.
    static constexpr std::string_view kKeyPrefix = "com.apple.keyboard.modifiermapping.";
    static constexpr std::string_view kSourceKey = "HIDKeyboardModifierMappingSrc";
    static constexpr std::string_view kDestinationKey = "HIDKeyboardModifierMappingDst";

    using ValueOf = std::function<std::optional<PreferenceValue>(const std::string& key)>;
    // Whether the HID event service of a keyboard is the built-in one; nothing when no such
    // keyboard is attached.
    using IsBuiltIn =
        std::function<std::optional<bool>(std::int64_t vendorID, std::int64_t productID)>;

    std::vector<KeyMappingPair> builtIn;
    std::vector<KeyMappingPair> external;

    // Reads every key of the global domain that names a keyboard. A keyboard that is not
    // attached has no table to set, so its pairs are left out; entries that are not a pair of
    // integers are skipped one by one.
    static SystemModifierMappings collect(const std::vector<std::string>& keys,
                                          const ValueOf& valueOf, const IsBuiltIn& isBuiltIn);
};

}  // namespace quorvane
