#include "tools/windows/DimBackgroundTool.hpp"

#include <algorithm>
#include <cmath>

#include "platform/DisplayConfiguration.hpp"
#include "platform/Preferences.hpp"
#include "platform/Screens.hpp"
#include "platform/WindowList.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

DimBackgroundTool::DimBackgroundTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform), windows_(platform.accessibility) {
    const double stored = platform_.preferences.number(kAmountKey).value_or(kDefaultAmount);
    amount_ =
        std::isfinite(stored) ? std::clamp(stored, kMinimumAmount, kMaximumAmount) : kDefaultAmount;
}

void DimBackgroundTool::start() {
    stop();
    buildOverlays();
    watcher_ = std::make_unique<AccessibilityWatcher>(
        platform_.accessibility, platform_.workspace, platform_.scheduler,
        std::vector<std::string>{kFocusedWindowChanged, kMainWindowChanged},
        [this](const Element&, const std::string&, int) { focusMayHaveChanged(); });
    watcher_->start();
    tokens_.push_back(platform_.workspace.observe(WorkspaceNotification::didActivateApplication,
                                                  [this](const auto*) { focusMayHaveChanged(); }));
    tokens_.push_back(platform_.displayConfiguration.observeReconfiguration([this] {
        buildOverlays();
        focusMayHaveChanged();
    }));
    follow();
    publish();
}

void DimBackgroundTool::stop() {
    pending_.cancel();
    tokens_.clear();
    overlays_.clear();  // each overlay leaves the screen as it goes
    follower_.reset();
    if (watcher_) {
        watcher_->stop();
        watcher_.reset();
        publish();
    }
}

void DimBackgroundTool::buildOverlays() {
    overlays_.clear();
    follower_.reset();
    for (const Screen& screen : platform_.screens.screens()) {
        auto overlay = platform_.screens.makeOverlay();
        if (!overlay) {
            setLastError("Couldn't make the shade for a display");
            return;
        }
        overlay->setFrame(screen.frame);
        overlay->setAlpha(amount_);
        overlays_.push_back(std::move(overlay));
    }
    setLastError({});
}

void DimBackgroundTool::focusMayHaveChanged() {
    if (!pending_) {
        pending_ = platform_.scheduler.post([this] {
            pending_.cancel();
            follow();
        });
    }
}

void DimBackgroundTool::follow() {
    std::optional<std::uint32_t> target;
    if (const auto front = platform_.workspace.frontmostApplication()) {
        target = DimFollower::target(front->pid, windows_.frame(windows_.focusedWindow(front->pid)),
                                     platform_.windowList.onScreenWindows());
    }
    const auto outcome = follower_.focusChanged(target);
    for (auto& overlay : overlays_) {
        if (outcome.step == DimFollower::Step::reorder) {
            overlay->orderBelow(outcome.windowNumber);
        } else if (outcome.step == DimFollower::Step::hide) {
            overlay->orderOut();
        }
    }
}

void DimBackgroundTool::setAmount(double amount) {
    amount_ =
        std::isfinite(amount) ? std::clamp(amount, kMinimumAmount, kMaximumAmount) : kDefaultAmount;
    platform_.preferences.set(kAmountKey, amount_);
    for (auto& overlay : overlays_) {
        overlay->setAlpha(amount_);
    }
    publish();
}

void DimBackgroundTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
