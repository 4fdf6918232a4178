#include "platform/AreaChoice.hpp"

#include <utility>

namespace quorvane {

void AreaChoice::finish(std::optional<Rect> screenRect) {
    if (std::exchange(finished_, true)) {
        return;
    }
    // Closed before the answer, so whatever the answer captures sees no tint.
    close_();
    if (cancelled_) {
        return;
    }
    if (!screenRect) {
        handler_(std::nullopt);
        return;
    }
    // Screen coordinates grow upward from the main display's bottom; accessibility ones
    // downward from its top.
    const Rect area = screenRect->standardized();
    handler_(Rect(area.minX(), mainDisplayHeight_ - area.maxY(), area.width(), area.height()));
}

void AreaChoice::cancel() {
    cancelled_ = true;
    finish(std::nullopt);
}

}  // namespace quorvane
