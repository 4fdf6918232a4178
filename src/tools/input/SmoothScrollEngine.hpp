#pragma once

#include <cstdint>
#include <optional>

#include "platform/Scheduler.hpp"
#include "tools/input/Glide.hpp"

namespace quorvane {

// The glide of smooth scrolling, free of any platform. Wheel events and the time go in; whether
// to swallow the event, the pixel scrolls to post and when the frame timer must run come out.
// Each swallowed notch adds its distance to what is pending; frames release it with an
// exponential decay and post whole pixels, keeping the fractions until the glide ends, so the
// total posted is exactly the total asked for.
class SmoothScrollEngine {
public:
    static constexpr double kPixelsPerNotch = 40;
    static constexpr Seconds kFrameInterval{1.0 / 120.0};
    // Two frames that come almost together still move the glide on by half a frame.
    static constexpr Seconds kShortestFrame{1.0 / 240.0};

    // What the tap reads of one scroll-wheel event, and what the tool knows at that moment.
    struct Wheel {
        double horizontal = 0;  // fixed-point delta of axis 2
        double vertical = 0;    // fixed-point delta of axis 1
        std::uint64_t flags = 0;
        std::int64_t userData = 0;
        bool continuous = false;
        // The front app keeps one step per notch (a terminal or a game).
        bool frontAppWantsSteps = false;
        // The scroll-direction tool reverses mouse wheels, and this event has not been
        // reversed by it yet.
        bool reverse = false;
    };
    // One continuous pixel scroll: wheel 1 vertical, wheel 2 horizontal.
    struct Scroll {
        std::int32_t vertical = 0;
        std::int32_t horizontal = 0;
        friend bool operator==(const Scroll&, const Scroll&) = default;
    };
    enum class TimerChange { none, start, stop };
    struct Outcome {
        bool pass = true;
        std::optional<Scroll> scroll;
        TimerChange timer = TimerChange::none;
    };
    struct Pair {
        double horizontal = 0;
        double vertical = 0;
    };

    // Whether the glide takes the event at all: a notched wheel with no modifier held, outside
    // terminals and games, not one of Quorvane's own scrolls, and moving.
    static bool takes(const Wheel& event);
    // A swallowed wheel event starts a glide at once (one frame right away), so the first
    // pixels move without waiting for the timer.
    Outcome wheel(const Wheel& event, Seconds now);
    // One tick of the frame timer.
    Outcome frame(Seconds now);
    // Drops any glide, as when the tool stops.
    void reset();

    void setSpeed(double speed) { speed_ = speed; }
    double speed() const { return speed_; }
    void setGlide(Glide glide) { glide_ = glide; }
    Glide glide() const { return glide_; }

    bool isGliding() const { return gliding_; }
    const Pair& remaining() const { return remaining_; }
    const Pair& carry() const { return carry_; }

private:
    Outcome step(Seconds now);

    double speed_ = 1.0;
    Glide glide_ = Glide::medium;
    bool gliding_ = false;
    Pair remaining_;
    Pair carry_;
    Seconds lastFrame_{0};
};

}  // namespace quorvane
