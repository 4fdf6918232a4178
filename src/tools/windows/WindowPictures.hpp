#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "base/Subscription.hpp"
#include "platform/Thumbnail.hpp"
#include "platform/WindowInfo.hpp"
#include "tools/windows/OpenWindows.hpp"

namespace quorvane {

class ScreenCapture;

// Pictures of the windows a list shows, taken through screen capture. They arrive one by one,
// later; the list draws a symbol until then. Taking new pictures, clearing, or dropping the
// object cancels those still on their way, so a closed list hears nothing more.
class WindowPictures {
public:
    explicit WindowPictures(ScreenCapture& capture) : capture_(capture) {}

    // One picture per window, its longer side `pixels` long and the window's proportions kept.
    // A window the window server does not list in `order` (on another Space) gets none.
    // `arrived` is told the index of each window whose picture came in.
    void take(const std::vector<OpenWindows::Window>& windows, const std::vector<WindowInfo>& order,
              int pixels, std::function<void(std::size_t index)> arrived);
    // Nothing when the picture has not come (yet).
    std::optional<Thumbnail> at(std::size_t index) const;
    void clear();

private:
    ScreenCapture& capture_;
    std::vector<std::optional<Thumbnail>> pictures_;
    std::vector<Subscription> requests_;
};

}  // namespace quorvane
