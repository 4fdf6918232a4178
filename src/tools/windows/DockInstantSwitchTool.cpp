#include "tools/windows/DockInstantSwitchTool.hpp"

#include "platform/DisplayConfiguration.hpp"
#include "platform/EventMonitors.hpp"
#include "platform/Screens.hpp"

namespace quorvane {

DockInstantSwitchTool::DockInstantSwitchTool(const ToolDescriptor& descriptor,
                                             const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      dock_(platform.accessibility, platform.workspace) {}

void DockInstantSwitchTool::start() {
    stop();
    watch_ = {};
    // Global: the pointer is over other apps' windows or the desktop, never Quorvane's own.
    monitor_ = platform_.eventMonitors.addGlobal(
        std::uint64_t{1} << static_cast<unsigned>(EventType::mouseMoved),
        [this](const Event& event) { moved(event.location()); });
    setLastError(monitor_ ? std::string() : "Couldn't follow the pointer");
    publish();
}

void DockInstantSwitchTool::stop() {
    if (monitor_) {
        monitor_.cancel();
        publish();
    }
}

std::optional<std::size_t> DockInstantSwitchTool::dockDisplay(const DisplayLayout& displays) {
    const auto items = dock_.items();
    if (items.empty()) {
        return std::nullopt;
    }
    const Rect& icon = items.front().frame;
    return displays.displayContaining({icon.midX(), icon.midY()});
}

void DockInstantSwitchTool::moved(Point location) {
    const DisplayLayout displays =
        DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    if (displays.count() < 2) {
        return;
    }
    const auto push = watch_.moved(
        location, displays, [&] { return dockDisplay(displays); }, platform_.scheduler.now());
    if (!push) {
        return;
    }
    if (platform_.screens.summonDock(*push)) {
        ++summoned_;
        setLastError({});
    } else {
        setLastError("macOS did not let Quorvane move the Dock; it moves after the usual wait");
    }
}

void DockInstantSwitchTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}
}  // namespace quorvane
