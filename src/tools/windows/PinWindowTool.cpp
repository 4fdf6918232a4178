#include "tools/windows/PinWindowTool.hpp"

#include "platform/Screens.hpp"
#include "platform/WindowList.hpp"
#include "platform/Workspace.hpp"
#include "tools/windows/DimFollower.hpp"

namespace quorvane {

PinWindowTool::PinWindowTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      windows_(platform.accessibility),
      shortcut_(
          platform, kShortcutKey, std::nullopt, [this] { toggle(); }, [this] { publish(); }) {}

void PinWindowTool::start() {
    shortcut_.activate();
    publish();
}

void PinWindowTool::stop() {
    shortcut_.deactivate();
    // Nothing stays pinned once the tool is off.
    unpin();
    publish();
}

void PinWindowTool::toggle() {
    const auto front = platform_.workspace.frontmostApplication();
    if (!front) {
        platform_.screens.beep();
        return;
    }
    // The focused window's window-server number, found the same way the shade finds it.
    const auto number =
        DimFollower::target(front->pid, windows_.frame(windows_.focusedWindow(front->pid)),
                            platform_.windowList.onScreenWindows());
    if (!number) {
        platform_.screens.beep();
        return;
    }
    if (pinned_ == number) {
        unpin();
        publish();
        return;
    }
    unpin();
    if (platform_.windowList.keepAbove(*number, true)) {
        pinned_ = number;
        setLastError({});
    } else {
        setLastError(
            "macOS doesn't let apps keep another app's window on top, so this window can't be "
            "pinned.");
    }
    publish();
}

void PinWindowTool::unpin() {
    if (pinned_) {
        platform_.windowList.keepAbove(*pinned_, false);
        pinned_.reset();
    }
}

std::optional<ToolControl> PinWindowTool::control() {
    return ToolControl{"Pin Window", "pin", [this] { return pinned_.has_value(); },
                       [this] { toggle(); }};
}

void PinWindowTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}
}  // namespace quorvane
