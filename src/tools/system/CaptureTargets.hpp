#pragma once

#include <optional>
#include <vector>

#include "base/Point.hpp"
#include "base/Rect.hpp"
#include "platform/ScreenCapture.hpp"
#include "platform/WindowInfo.hpp"

namespace quorvane {

// What a capture points at, from what the user chose: the display under the pointer, the
// front window of the app in front, or a dragged area. All in accessibility coordinates.
class CaptureTargets {
public:
    // A dragged area smaller than this on either side was a click, not a choice.
    static constexpr double kMinimumArea = 8;

    static std::optional<ScreenCapture::Target> display(const ScreenCapture::Content& content,
                                                        Point pointer);
    // The part of the display holding the area's centre that the area covers.
    static std::optional<ScreenCapture::Target> area(const ScreenCapture::Content& content,
                                                     const Rect& area);
    // The frontmost ordinary window of `pid`, by the window server's front-to-back order.
    static std::optional<ScreenCapture::Target> frontWindow(const ScreenCapture::Content& content,
                                                            int pid,
                                                            const std::vector<WindowInfo>& order);
    // The target's size in points: the source rectangle, the window or the display.
    static std::optional<Size> size(const ScreenCapture::Content& content,
                                    const ScreenCapture::Target& target);
    // Pixels per point of the display or window; 1 when it is not listed.
    static double scale(const ScreenCapture::Content& content, const ScreenCapture::Target& target);
    // Points to output pixels at `scale`, rounded to even numbers, which video encoders need.
    static Size pixels(Size points, double scale);
};

}  // namespace quorvane
