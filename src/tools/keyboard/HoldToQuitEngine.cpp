#include "tools/keyboard/HoldToQuitEngine.hpp"

#include <algorithm>

#include "platform/EventField.hpp"

namespace quorvane {

HoldToQuitEngine::Outcome HoldToQuitEngine::handle(EventType type, std::uint16_t keyCode,
                                                   std::uint64_t flags, bool autorepeat,
                                                   Seconds now) {
    const bool commandOnly = (flags & modifierFlag::mask) == modifierFlag::command;
    switch (type) {
        case EventType::keyDown:
            if (keyCode != kQKeyCode) {
                return {};
            }
            if (start_) {
                return {false, Action::none};  // repeats of the held key
            }
            if (!commandOnly || autorepeat) {
                return {};  // ⌥⌘Q, ⇧⌘Q and the rest keep their own meaning
            }
            start_ = now;
            quitSent_ = false;
            return {false, Action::show};
        case EventType::keyUp:
            if (keyCode != kQKeyCode || !start_) {
                return {};
            }
            {
                const bool cancelled = !quitSent_;
                reset();
                return {false, cancelled ? Action::hide : Action::none};
            }
        case EventType::flagsChanged:
            // Letting go of ⌘ first cancels as surely as letting go of Q; Q's key up then goes
            // to the app, which ignores a lone Q release.
            if (start_ && (flags & modifierFlag::command) == 0) {
                const bool cancelled = !quitSent_;
                reset();
                return {true, cancelled ? Action::hide : Action::none};
            }
            return {};
        default:
            return {};
    }
}

HoldToQuitEngine::Outcome HoldToQuitEngine::tick(Seconds now) {
    if (!isHolding()) {
        return {};
    }
    if (now - *start_ >= hold_) {
        quitSent_ = true;
        return {true, Action::quit};
    }
    return {true, Action::show};
}

HUDCard HoldToQuitEngine::card(Seconds now) const {
    double level = 0;
    if (start_ && hold_.count() > 0) {
        level = std::clamp((now - *start_) / hold_, 0.0, 1.0);
    }
    return HUDCard{kSymbol, kTitle, level};
}

void HoldToQuitEngine::reset() {
    start_.reset();
    quitSent_ = false;
}

}  // namespace quorvane
