#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "input/KeyCombo.hpp"
#include "tools/windows/SnapAction.hpp"

namespace quorvane {

using SnapShortcuts = std::map<SnapAction, std::optional<KeyCombo>>;

// The shortcuts window snap starts with: ⌃⌥ with the arrows, U I J K for the quarters, return
// and C, and ⌃⌥⌘→ for the next display. The letters are looked up on the user's layout, so
// ⌃⌥U is the key that types "u" there, wherever it sits.
struct SnapDefaults {
    // What each key types without modifiers, by key code, as the keyboard-layout port says.
    using LayoutCharacters = std::map<std::uint16_t, std::u16string>;

    // The key that types the letter alone; the lowest code if several do.
    static std::optional<std::uint16_t> keyCodeTyping(char16_t letter,
                                                      const LayoutCharacters& layout);
    static SnapShortcuts shortcuts(const LayoutCharacters& layout);
};

}  // namespace quorvane
