#pragma once

#include <functional>
#include <optional>

#include "base/Rect.hpp"
#include "platform/ScreenCapture.hpp"

namespace quorvane {

// The crosshair's one answer, shared by its windows (one a display): the first of them to
// finish closes them all, then answers in accessibility coordinates. Once the subscription has
// ended nothing is answered, but the windows are still closed.
class AreaChoice {
public:
    // `mainDisplayHeight` is the height of the display whose bottom left is the screen origin.
    AreaChoice(ScreenCapture::AreaHandler handler, std::function<void()> close,
               double mainDisplayHeight)
        : handler_(std::move(handler)),
          close_(std::move(close)),
          mainDisplayHeight_(mainDisplayHeight) {}

    // `screenRect` in screen coordinates (origin at the main display's bottom left, y upward);
    // nothing when the user cancelled. Only the first call counts.
    void finish(std::optional<Rect> screenRect);
    // The subscription ended: the windows go, without an answer.
    void cancel();

private:
    ScreenCapture::AreaHandler handler_;
    std::function<void()> close_;
    double mainDisplayHeight_ = 0;
    bool finished_ = false;
    bool cancelled_ = false;
};

}  // namespace quorvane
