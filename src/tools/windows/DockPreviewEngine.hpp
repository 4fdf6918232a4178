#pragma once

#include <optional>
#include <string>

#include "platform/Scheduler.hpp"

namespace quorvane {

// When the preview of a Dock icon opens, moves and closes. Hovering an icon opens its preview
// after a short wait, so sliding along the Dock does not flash one preview per icon; once a
// preview is open, the next icon's comes at once. Leaving the Dock closes it after a moment,
// which is long enough to move the pointer up into the preview, and it stays open while the
// pointer is inside it.
class DockPreviewEngine {
public:
    static constexpr Seconds kCloseDelay{0.4};

    // What to show after `delay`: an icon's bundle URL, or nothing (close).
    struct Step {
        Seconds delay{0};
        std::string item;
        friend bool operator==(const Step&, const Step&) = default;
    };

    explicit DockPreviewEngine(Seconds openDelay) : openDelay_(openDelay) {}

    // The Dock's highlighted app icon changed; empty when none is. Answers the next step, or
    // nothing when what is shown already fits.
    std::optional<Step> hovered(std::string item);
    // The step's time came. True when the tool should carry it out now; false when it is
    // stale or the pointer is inside the open preview (then ask `next` again).
    bool due(const Step& step, bool pointerInPreview);
    std::optional<Step> next() const;
    // The preview went away on its own (a window was picked, the user clicked elsewhere).
    void closed();

    const std::string& shown() const { return shown_; }
    void setOpenDelay(Seconds delay) { openDelay_ = delay; }

private:
    Seconds openDelay_;
    std::string wanted_;
    std::string shown_;
};

}  // namespace quorvane
