#pragma once

#include <cstdint>
#include <optional>

namespace quorvane {

class EventSystem;

// Types a key with modifiers as if on the keyboard (⌘V to paste, say): the modifier keys go
// down first, one by one, each press carrying the flags held so far; then the key goes down
// and up with all of them; then the modifiers are let go in reverse order. Each event goes to
// the HID location, so every application and tap sees it like real typing; with a tag, each
// carries it in its source user-data field so Quorvane's own taps can let it pass.
struct KeyPressSynthesizer {
    static void press(EventSystem& events, std::uint16_t keyCode, std::uint64_t flags,
                      std::optional<std::int64_t> tag = std::nullopt);
};

}  // namespace quorvane
