#include "tools/input/SmoothScrollEngine.hpp"

#include <cmath>
#include <limits>

#include "platform/EventField.hpp"

namespace quorvane {

namespace {

// A change of direction cancels the rest of the glide: the new way starts from the new notch.
void add(double& pending, double amount) {
    pending = pending * amount < 0 ? amount : pending + amount;
}

// The part of the pending distance one frame releases; the last sub-pixel goes all at once,
// or the decay would never reach zero.
double release(double& remaining, double fraction) {
    const double step = std::abs(remaining) < 1.0 ? remaining : remaining * fraction;
    remaining -= step;
    return step;
}

// Whole pixels of the carry, as many as one event can hold; what does not fit stays for the
// next frame.
std::int32_t whole(double& carry, bool last) {
    constexpr double kMax = std::numeric_limits<std::int32_t>::max();
    constexpr double kMin = std::numeric_limits<std::int32_t>::min();
    // std::round takes halves away from zero.
    double pixels = last ? std::round(carry) : std::trunc(carry);
    if (pixels > kMax) {
        pixels = kMax;
    } else if (pixels < kMin) {
        pixels = kMin;
    }
    carry -= pixels;
    return static_cast<std::int32_t>(pixels);
}

}  // namespace

bool SmoothScrollEngine::takes(const Wheel& event) {
    if (event.frontAppWantsSteps || event.userData == ownEventTag::scroll || event.continuous ||
        (event.flags & modifierFlag::mask) != 0) {
        return false;
    }
    return (event.horizontal != 0 || event.vertical != 0) && std::isfinite(event.horizontal) &&
           std::isfinite(event.vertical);
}

SmoothScrollEngine::Outcome SmoothScrollEngine::wheel(const Wheel& event, Seconds now) {
    if (!takes(event)) {
        return {};
    }
    double h = event.horizontal;
    double v = event.vertical;
    if (event.reverse) {
        h = -h;
        v = -v;
    }
    add(remaining_.horizontal, h * kPixelsPerNotch * speed_);
    add(remaining_.vertical, v * kPixelsPerNotch * speed_);
    if (gliding_) {
        Outcome outcome;
        outcome.pass = false;
        return outcome;
    }
    gliding_ = true;
    lastFrame_ = now;
    Outcome outcome = step(now);
    outcome.pass = false;
    // A glide that ended in its first frame never needs the timer.
    outcome.timer = gliding_ ? TimerChange::start : TimerChange::none;
    return outcome;
}

SmoothScrollEngine::Outcome SmoothScrollEngine::frame(Seconds now) {
    if (!gliding_) {
        Outcome outcome;
        outcome.timer = TimerChange::stop;
        return outcome;
    }
    return step(now);
}

SmoothScrollEngine::Outcome SmoothScrollEngine::step(Seconds now) {
    Seconds dt = now - lastFrame_;
    lastFrame_ = now;
    if (dt <= kShortestFrame) {
        dt = kShortestFrame;
    }
    const double fraction = 1.0 - std::exp(-dt.count() / timeConstant(glide_).count());
    carry_.horizontal += release(remaining_.horizontal, fraction);
    carry_.vertical += release(remaining_.vertical, fraction);

    const bool last = remaining_.horizontal == 0 && remaining_.vertical == 0;
    const Scroll scroll{whole(carry_.vertical, last), whole(carry_.horizontal, last)};
    Outcome outcome;
    if (scroll.vertical != 0 || scroll.horizontal != 0) {
        outcome.scroll = scroll;
    }
    // Done once nothing is pending and the rounded rest has gone out; only a carry too large
    // for one event keeps the glide going with nothing pending.
    if (last && std::abs(carry_.horizontal) < 1 && std::abs(carry_.vertical) < 1) {
        gliding_ = false;
        carry_ = {};
        outcome.timer = TimerChange::stop;
    }
    return outcome;
}

void SmoothScrollEngine::reset() {
    gliding_ = false;
    remaining_ = {};
    carry_ = {};
}

}  // namespace quorvane
