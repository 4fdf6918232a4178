#include "platform/ShareableContent.hpp"

namespace quorvane {

void assignWindowScales(ScreenCapture::Content& content) {
    for (auto& window : content.windows) {
        for (const auto& display : content.displays) {
            if (display.frame.contains({window.frame.midX(), window.frame.midY()})) {
                window.scale = display.scale;
            }
        }
    }
}

}  // namespace quorvane
