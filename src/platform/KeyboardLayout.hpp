#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace quorvane {

// The keyboard layout the user types with right now. Shortcuts name physical keys, while
// people think of letters, so a default such as ⌃⌥U has to find where "u" sits today.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    // What each key types with no modifiers held, by virtual key code, as UTF-16. Empty when
    // there is no current layout or it carries no Unicode layout data.
    virtual std::map<std::uint16_t, std::u16string> characters() = 0;
};

}  // namespace quorvane
