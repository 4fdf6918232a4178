#pragma once

#include "platform/KeyboardLayout.hpp"

namespace quorvane {

// The current keyboard layout through Text Input Sources and UCKeyTranslate.
class MacKeyboardLayout final : public KeyboardLayout {
public:
    std::map<std::uint16_t, std::u16string> characters() override;
};

}  // namespace quorvane
