#include "tools/windows/DisplayLayout.hpp"

#include <algorithm>

#include "platform/DisplayConfiguration.hpp"
#include "platform/Screens.hpp"

namespace quorvane {

Rect DisplayLayout::toAccessibility(const Rect& screenRect) const {
    const double primaryHeight = displays_.empty() ? 0 : displays_.front().frame.height();
    return {screenRect.minX(), primaryHeight - screenRect.maxY(), screenRect.width(),
            screenRect.height()};
}

std::optional<std::size_t> DisplayLayout::displayContaining(Point point) const {
    for (std::size_t i = 0; i < displays_.size(); ++i) {
        if (toAccessibility(displays_[i].frame).contains(point)) {
            return i;
        }
    }
    return std::nullopt;
}

Rect DisplayLayout::visibleArea(std::size_t index) const {
    return toAccessibility(displays_.at(index).visibleFrame);
}

DisplayLayout DisplayLayout::read(Screens& screens, DisplayConfiguration& configuration) {
    const auto ids = configuration.displayIDs();
    std::vector<Display> displays;
    const auto list = screens.screens();
    for (std::size_t i = 0; i < list.size(); ++i) {
        displays.push_back({list[i].frame, list[i].visibleFrame, i < ids.size() ? ids[i] : ""});
    }
    return DisplayLayout(std::move(displays));
}

std::vector<std::string> DisplayLayout::ids() const {
    std::vector<std::string> result;
    for (const auto& display : displays_) {
        result.push_back(display.id);
    }
    return result;
}

std::optional<std::size_t> DisplayLayout::indexOf(const std::string& id) const {
    for (std::size_t i = 0; i < displays_.size(); ++i) {
        if (!id.empty() && displays_[i].id == id) {
            return i;
        }
    }
    return std::nullopt;
}

Rect DisplayLayout::clampInto(const Rect& frame, std::size_t index) const {
    const Rect area = visibleArea(index);
    const Rect window = frame.standardized();
    const double width = std::min(window.width(), area.width());
    const double height = std::min(window.height(), area.height());
    return {std::clamp(window.minX(), area.minX(), area.maxX() - width),
            std::clamp(window.minY(), area.minY(), area.maxY() - height), width, height};
}

Rect DisplayLayout::clampToVisibleArea(const Rect& frame) const {
    if (displays_.empty()) {
        return frame;
    }
    std::size_t best = 0;
    if (const auto holding = displayContaining({frame.midX(), frame.midY()})) {
        best = *holding;
    } else {
        double most = 0;
        for (std::size_t i = 0; i < displays_.size(); ++i) {
            const Rect overlap = this->frame(i).intersection(frame);
            const double area = overlap.isEmpty() ? 0 : overlap.width() * overlap.height();
            if (area > most) {
                most = area;
                best = i;
            }
        }
    }
    return clampInto(frame, best);
}

}  // namespace quorvane
