#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvane {

// A key the remap tool can change, named by its place on the keyboard. The system identifies it
// by its usage on the HID keyboard page (page 7).
enum class Key {
    capsLock,
    escape,
    tab,
    returnKey,
    delete_,
    forwardDelete,
    leftControl,
    leftOption,
    leftCommand,
    leftShift,
    rightControl,
    rightOption,
    rightCommand,
    rightShift,
    home,
    end,
    pageUp,
    pageDown,
    grave,
    section,
    application,
    printScreen,
    insert,
    f13,
    f14,
    f15,
};

struct KeyInfo {
    Key key;
    std::uint32_t usage;
    // The stored name: the case name, "delete" for the one C++ keeps for itself.
    std::string_view name;
    std::string_view label;
};

// Every key, in the order the pickers list them.
const std::array<KeyInfo, 26>& allKeys();
const KeyInfo& info(Key key);
std::string_view rawValue(Key key);
std::string_view label(Key key);
std::optional<Key> keyFromRawValue(std::string_view name);
// What the system is handed: the usage page in the upper 32 bits, the usage below.
std::int64_t hidValue(Key key);

}  // namespace quorvane
