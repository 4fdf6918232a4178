#include "tools/input/SideButtonEngine.hpp"

namespace quorvane {

SideButtonEngine::Outcome SideButtonEngine::handle(EventType type, std::int64_t button,
                                                   bool frontAppExcepted) {
    if (button != kBackButton && button != kForwardButton) {
        return {};
    }
    bool& held = held_[static_cast<std::size_t>(button - kBackButton)];
    if (type == EventType::otherMouseDown) {
        if (frontAppExcepted) {
            return {};
        }
        held = true;
        return {false, button == kBackButton ? Navigation::back : Navigation::forward};
    }
    if (type == EventType::otherMouseUp && held) {
        held = false;
        return {false, std::nullopt};
    }
    return {};
}

}  // namespace quorvane
