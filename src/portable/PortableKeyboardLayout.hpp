#pragma once

#include "platform/KeyboardLayout.hpp"

namespace quorvane {

// No layout outside macOS: defaults fall back to the US key codes.
class PortableKeyboardLayout : public KeyboardLayout {
public:
    std::map<std::uint16_t, std::u16string> characters() override { return {}; }
};

}  // namespace quorvane
