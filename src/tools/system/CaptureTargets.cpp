#include "tools/system/CaptureTargets.hpp"

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

using Target = ScreenCapture::Target;

const ScreenCapture::Display* displayAt(const ScreenCapture::Content& content, Point point) {
    for (const auto& display : content.displays) {
        if (display.frame.contains(point)) {
            return &display;
        }
    }
    return nullptr;
}

}  // namespace

std::optional<Target> CaptureTargets::display(const ScreenCapture::Content& content,
                                              Point pointer) {
    const auto* display = displayAt(content, pointer);
    if (display == nullptr) {
        // The pointer can sit on the very last pixel row, which no frame contains.
        if (content.displays.empty()) {
            return std::nullopt;
        }
        display = &content.displays.front();
    }
    return Target{Target::Kind::display, display->displayID, std::nullopt};
}

std::optional<Target> CaptureTargets::area(const ScreenCapture::Content& content,
                                           const Rect& area) {
    const Rect chosen = area.standardized();
    const auto* display = displayAt(content, {chosen.midX(), chosen.midY()});
    if (display == nullptr) {
        return std::nullopt;
    }
    const Rect part = chosen.intersection(display->frame);
    if (part.width() < kMinimumArea || part.height() < kMinimumArea) {
        return std::nullopt;
    }
    return Target{Target::Kind::display, display->displayID,
                  part.offsetBy(-display->frame.minX(), -display->frame.minY())};
}

std::optional<Target> CaptureTargets::frontWindow(const ScreenCapture::Content& content, int pid,
                                                  const std::vector<WindowInfo>& order) {
    for (const auto& listed : order) {
        if (listed.pid != pid || listed.layer != 0) {
            continue;
        }
        for (const auto& window : content.windows) {
            if (window.windowID == listed.number) {
                return Target{Target::Kind::window, window.windowID, std::nullopt};
            }
        }
    }
    return std::nullopt;
}

std::optional<Size> CaptureTargets::size(const ScreenCapture::Content& content,
                                         const Target& target) {
    if (target.sourceRect) {
        return target.sourceRect->size;
    }
    if (target.kind == Target::Kind::window) {
        for (const auto& window : content.windows) {
            if (window.windowID == target.id) {
                return window.frame.size;
            }
        }
        return std::nullopt;
    }
    for (const auto& display : content.displays) {
        if (display.displayID == target.id) {
            return display.frame.size;
        }
    }
    return std::nullopt;
}

double CaptureTargets::scale(const ScreenCapture::Content& content, const Target& target) {
    if (target.kind == Target::Kind::window) {
        for (const auto& window : content.windows) {
            if (window.windowID == target.id) {
                return window.scale;
            }
        }
        return 1;
    }
    for (const auto& display : content.displays) {
        if (display.displayID == target.id) {
            return display.scale;
        }
    }
    return 1;
}

Size CaptureTargets::pixels(Size points, double scale) {
    const auto even = [&](double length) {
        const double scaled = std::max(2.0, std::round(std::fabs(length) * scale));
        return 2 * std::floor(scaled / 2);
    };
    return {even(points.width), even(points.height)};
}

}  // namespace quorvane
