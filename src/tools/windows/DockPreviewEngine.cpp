#include "tools/windows/DockPreviewEngine.hpp"

namespace quorvane {

std::optional<DockPreviewEngine::Step> DockPreviewEngine::hovered(std::string item) {
    wanted_ = std::move(item);
    return next();
}

std::optional<DockPreviewEngine::Step> DockPreviewEngine::next() const {
    if (wanted_ == shown_) {
        return std::nullopt;
    }
    if (shown_.empty()) {
        return Step{openDelay_, wanted_};
    }
    if (wanted_.empty()) {
        return Step{kCloseDelay, {}};
    }
    return Step{Seconds{0}, wanted_};
}

bool DockPreviewEngine::due(const Step& step, bool pointerInPreview) {
    if (step.item != wanted_) {
        return false;
    }
    if (step.item.empty() && pointerInPreview) {
        return false;
    }
    shown_ = step.item;
    return true;
}

void DockPreviewEngine::closed() {
    wanted_.clear();
    shown_.clear();
}

}  // namespace quorvane
