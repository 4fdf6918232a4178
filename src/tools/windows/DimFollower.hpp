#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "base/Rect.hpp"
#include "platform/WindowInfo.hpp"

namespace quorvane {

// Decides what the dimming overlays do when focus moves. The overlays sit right under the
// focused window, so that window stays bright and everything behind it is dimmed. Focus
// changes arrive in bursts (the application, then its main window, then its focused window);
// only a change of the window to sit under reorders the overlays, so the screen never
// flickers.
class DimFollower {
public:
    enum class Step { none, reorder, hide };
    struct Outcome {
        Step step = Step::none;
        std::uint32_t windowNumber = 0;
        friend bool operator==(const Outcome&, const Outcome&) = default;
    };

    // The window-server window of the focused window: among the application's ordinary windows
    // (front to back), the one with the focused window's frame, else the frontmost one.
    // Nothing when the application shows no window (the desktop, a menu-bar app).
    static std::optional<std::uint32_t> target(int pid, const std::optional<Rect>& focusedFrame,
                                               const std::vector<WindowInfo>& windows);

    // What to do now that focus is on `target`.
    Outcome focusChanged(std::optional<std::uint32_t> target);
    // After the overlays were rebuilt (displays changed): the next focus change reorders.
    void reset() {
        current_.reset();
        hidden_ = false;
    }

private:
    std::optional<std::uint32_t> current_;
    bool hidden_ = false;
};

}  // namespace quorvane
