#include "tools/keyboard/KeyboardLock.hpp"

namespace quorvane {

KeyboardLock::Outcome KeyboardLock::handle(EventType type, std::uint16_t keyCode, bool autorepeat,
                                           bool lockTrackpad) {
    switch (type) {
        case EventType::leftMouseDown:
        case EventType::rightMouseDown:
        case EventType::otherMouseDown:
            // The unlocking click itself would land on whatever is under the pointer.
            escapes_ = 0;
            return {false, true};
        case EventType::keyDown:
            if (keyCode != kEscapeKeyCode) {
                escapes_ = 0;  // a cloth sweeping over the keys must not add up to an unlock
                return {false, false};
            }
            if (autorepeat) {
                return {false, false};  // a resting finger is one press, not five
            }
            if (++escapes_ >= kEscapesToUnlock) {
                escapes_ = 0;
                return {false, true};
            }
            return {false, false};
        case EventType::keyUp:
        case EventType::flagsChanged:
        case EventType::systemDefined:
            return {false, false};
        case EventType::scrollWheel:
        case EventType::gesture:
            return {!lockTrackpad, false};
        default:
            return {};
    }
}

}  // namespace quorvane
