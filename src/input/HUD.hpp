#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Panel.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Screen.hpp"
#include "ui/HUDCard.hpp"

namespace quorvane {

class Screens;

// The small floating card that tells the user what just happened (a volume, a window
// position), on the screen they are working on, gone again after a moment. One panel, reused
// for every showing. A held notice (hold ⌘Q to quit) stays until hidden and is not displaced by
// ordinary ones meanwhile. Main thread only.
class HUD {
public:
    static constexpr double kBottomOffset = 120;
    static constexpr Seconds kFadeOutDuration{0.2};

    HUD(Screens& screens, Scheduler& scheduler) : screens_(screens), scheduler_(scheduler) {}
    HUD(const HUD&) = delete;
    HUD& operator=(const HUD&) = delete;

    void show(const HUDCard& card, bool atBottom, Seconds duration, bool held = false);
    // Fades out. A showing that arrives during the fade keeps the panel up.
    void hide();

    bool isHeld() const { return isHeld_; }
    std::uint64_t generation() const { return generation_; }

    // The first screen under the mouse, else the main screen.
    static std::optional<Screen> screenUnderMouse(const std::vector<Screen>& screens, Point mouse,
                                                  const std::optional<Screen>& main);
    // Centred horizontally in the visible frame; 120 points above its bottom, or centred.
    static Rect frameFor(Size size, const Rect& visibleFrame, bool atBottom);

private:
    Screens& screens_;
    Scheduler& scheduler_;
    std::unique_ptr<Panel> panel_;
    Timer hideTimer_;
    bool isHeld_ = false;
    std::uint64_t generation_ = 0;
};

}  // namespace quorvane
