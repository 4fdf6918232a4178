#include "tools/keyboard/HomeEndEngine.hpp"

#include "platform/EventField.hpp"

namespace quorvane {

HomeEndEngine::Outcome HomeEndEngine::handle(EventType type, std::uint16_t keyCode,
                                             std::uint64_t flags, std::int64_t tag,
                                             bool leftAlone) {
    if ((keyCode != kHome && keyCode != kEnd) || tag == ownEventTag::key) {
        return {};
    }
    const std::size_t slot = keyCode == kHome ? 0 : 1;
    if (type == EventType::keyUp) {
        const bool swallow = swallowedDown_[slot];
        swallowedDown_[slot] = false;
        return {!swallow, std::nullopt};
    }
    if (type != EventType::keyDown) {
        return {};
    }
    const std::uint64_t modifiers = flags & modifierFlag::mask;
    // ⌥ and ⌃ with Home or End mean something else already (or nothing); those stay as typed.
    if (leftAlone || (modifiers & ~(modifierFlag::shift | modifierFlag::command)) != 0) {
        swallowedDown_[slot] = false;
        return {};
    }
    const bool document = (modifiers & modifierFlag::command) != 0;
    std::uint16_t arrow = 0;
    if (keyCode == kHome) {
        arrow = document ? kUpArrow : kLeftArrow;
    } else {
        arrow = document ? kDownArrow : kRightArrow;
    }
    swallowedDown_[slot] = true;
    return {false, Press{arrow, modifiers | modifierFlag::command | kArrowFlags}};
}

}  // namespace quorvane
