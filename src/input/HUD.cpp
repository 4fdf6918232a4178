#include "input/HUD.hpp"

#include "platform/Screens.hpp"

namespace quorvane {

std::optional<Screen> HUD::screenUnderMouse(const std::vector<Screen>& screens, Point mouse,
                                            const std::optional<Screen>& main) {
    for (const Screen& screen : screens) {
        if (screen.frame.contains(mouse)) {
            return screen;
        }
    }
    return main;
}

Rect HUD::frameFor(Size size, const Rect& visibleFrame, bool atBottom) {
    const double x = visibleFrame.midX() - size.width / 2;
    const double y =
        atBottom ? visibleFrame.minY() + kBottomOffset : visibleFrame.midY() - size.height / 2;
    return {x, y, size.width, size.height};
}

void HUD::show(const HUDCard& card, bool atBottom, Seconds duration, bool held) {
    if (isHeld_ && !held) {
        return;
    }
    isHeld_ = held;
    ++generation_;
    if (!panel_) {
        panel_ = screens_.makeFloatingPanel();
        if (!panel_) {
            return;  // no window system
        }
    }
    panel_->setContent(card);
    const Size size = panel_->fittingSize();
    if (const auto screen =
            screenUnderMouse(screens_.screens(), screens_.mouseLocation(), screens_.mainScreen())) {
        panel_->setFrame(frameFor(size, screen->visibleFrame, atBottom));
    }
    panel_->fadeTo(1.0, Seconds::zero(), {});
    panel_->orderFrontRegardless();
    hideTimer_.cancel();
    if (!held) {
        hideTimer_ = scheduler_.after(duration, [this] { hide(); });
    }
}

void HUD::hide() {
    hideTimer_.cancel();
    isHeld_ = false;
    if (!panel_ || !panel_->isVisible()) {
        return;
    }
    panel_->fadeTo(0.0, kFadeOutDuration, [this, shown = generation_] {
        if (generation_ == shown) {
            panel_->orderOut();
        }
    });
}

}  // namespace quorvane
