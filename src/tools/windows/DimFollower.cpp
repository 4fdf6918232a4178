#include "tools/windows/DimFollower.hpp"

namespace quorvane {

std::optional<std::uint32_t> DimFollower::target(int pid, const std::optional<Rect>& focusedFrame,
                                                 const std::vector<WindowInfo>& windows) {
    std::optional<std::uint32_t> frontmost;
    for (const auto& window : windows) {
        if (window.pid != pid || window.layer != 0) {
            continue;
        }
        if (focusedFrame && window.bounds == *focusedFrame) {
            return window.number;
        }
        if (!frontmost) {
            frontmost = window.number;
        }
    }
    return frontmost;
}

DimFollower::Outcome DimFollower::focusChanged(std::optional<std::uint32_t> target) {
    if (!target) {
        if (hidden_) {
            return {};
        }
        hidden_ = true;
        current_.reset();
        return {Step::hide, 0};
    }
    if (current_ == target) {
        return {};
    }
    current_ = target;
    hidden_ = false;
    return {Step::reorder, *target};
}

}  // namespace quorvane
