#include "tools/windows/WindowPictures.hpp"

#include <algorithm>
#include <cmath>

#include "platform/ScreenCapture.hpp"
#include "tools/windows/DockPreviewPlan.hpp"

namespace quorvane {

void WindowPictures::take(const std::vector<OpenWindows::Window>& windows,
                          const std::vector<WindowInfo>& order, int pixels,
                          std::function<void(std::size_t index)> arrived) {
    clear();
    pictures_.resize(windows.size());
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto number =
            DockPreviewPlan::windowNumber(windows[i].pid, windows[i].record.frame, order);
        if (!number) {
            continue;
        }
        const Size frame = windows[i].record.frame.size;
        const double longer = std::max({frame.width, frame.height, 1.0});
        const auto side = [&](double length) {
            return static_cast<int>(std::max(2.0, std::round(pixels * length / longer)));
        };
        requests_.push_back(capture_.captureImage(
            {ScreenCapture::Target::Kind::window, *number, std::nullopt}, side(frame.width),
            side(frame.height),
            [this, i, arrived](std::optional<Thumbnail> picture, const std::string&) {
                // A missing picture leaves the row's symbol; the list itself is still right.
                if (picture && i < pictures_.size()) {
                    pictures_[i] = std::move(picture);
                    if (arrived) {
                        arrived(i);
                    }
                }
            }));
    }
}

std::optional<Thumbnail> WindowPictures::at(std::size_t index) const {
    return index < pictures_.size() ? pictures_[index] : std::nullopt;
}

void WindowPictures::clear() {
    requests_.clear();
    pictures_.clear();
}

}  // namespace quorvane
