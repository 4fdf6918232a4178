#pragma once

#include "platform/KeyboardLayout.hpp"

namespace quorvane {

// A layout the test writes key by key; empty means no layout at all.
struct FakeKeyboardLayout : KeyboardLayout {
    std::map<std::uint16_t, std::u16string> keys;
    std::map<std::uint16_t, std::u16string> characters() override { return keys; }
};

}  // namespace quorvane
