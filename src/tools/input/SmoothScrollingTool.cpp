#include "tools/input/SmoothScrollingTool.hpp"

#include <cmath>

#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"
#include "platform/ProcessFacts.hpp"
#include "platform/Workspace.hpp"
#include "tools/input/NotchedScrollApps.hpp"
#include "tools/input/ScrollReversal.hpp"

namespace quorvane {

namespace {

bool isUsableSpeed(double speed) {
    return std::isfinite(speed) && speed >= SmoothScrollingTool::kMinimumSpeed &&
           speed <= SmoothScrollingTool::kMaximumSpeed;
}

}  // namespace

SmoothScrollingTool::SmoothScrollingTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    const double speed = platform_.preferences.number(kSpeedKey).value_or(1.0);
    engine_.setSpeed(isUsableSpeed(speed) ? speed : 1.0);
    if (const auto raw = platform_.preferences.string(kGlideKey)) {
        engine_.setGlide(glideFromRawValue(*raw).value_or(Glide::medium));
    }
}

void SmoothScrollingTool::start() {
    stop();
    tap_ = EventTap::create(platform_.events, {EventType::scrollWheel},
                            [this](EventType, Event& event) { return handle(event); });
    activationToken_ = platform_.workspace.observe(WorkspaceNotification::didActivateApplication,
                                                   [this](const RunningApplication* app) {
                                                       if (app) {
                                                           frontAppChanged(*app);
                                                       }
                                                   });
    if (const auto front = platform_.workspace.frontmostApplication()) {
        frontAppChanged(*front);
    }
    publish();
}

void SmoothScrollingTool::stop() {
    tap_.reset();
    activationToken_.cancel();
    timer_.cancel();
    engine_.reset();
    frontAppWantsSteps_ = false;
    publish();
}

void SmoothScrollingTool::frontAppChanged(const RunningApplication& app) {
    if (NotchedScrollApps::isTerminal(app.bundleID)) {
        frontAppWantsSteps_ = true;
        return;
    }
    const auto category =
        platform_.processFacts.infoString(app.bundleURL, NotchedScrollApps::kCategoryKey);
    frontAppWantsSteps_ = category && NotchedScrollApps::isGameCategory(*category);
}

bool SmoothScrollingTool::handle(Event& event) {
    SmoothScrollEngine::Wheel wheel;
    wheel.horizontal = event.doubleField(eventField::scrollFixedPtDeltaAxis2);
    wheel.vertical = event.doubleField(eventField::scrollFixedPtDeltaAxis1);
    wheel.flags = event.flags();
    wheel.userData = event.integerField(eventField::sourceUserData);
    wheel.continuous = event.integerField(eventField::scrollIsContinuous) != 0;
    wheel.frontAppWantsSteps = frontAppWantsSteps_;
    if (!SmoothScrollEngine::takes(wheel)) {
        return true;
    }
    // The swallowed step never reaches the scroll-direction tool's tap if it comes after this
    // one, so its reversal is applied here; one it already turned around is left as it is.
    wheel.reverse = wheel.userData != ScrollReversal::kReversedTag &&
                    ScrollReversal::reversesMouseWheels(platform_.preferences);
    const auto outcome = engine_.wheel(wheel, platform_.scheduler.now());
    // A step that cannot glide still scrolls the ordinary way.
    return carryOut(outcome) ? outcome.pass : true;
}

void SmoothScrollingTool::frame() {
    carryOut(engine_.frame(platform_.scheduler.now()));
}

bool SmoothScrollingTool::carryOut(const SmoothScrollEngine::Outcome& outcome) {
    if (outcome.scroll && !post(*outcome.scroll)) {
        engine_.reset();
        timer_.cancel();
        return false;
    }
    switch (outcome.timer) {
        case SmoothScrollEngine::TimerChange::start:
            timer_ =
                platform_.scheduler.every(SmoothScrollEngine::kFrameInterval, [this] { frame(); });
            break;
        case SmoothScrollEngine::TimerChange::stop:
            timer_.cancel();
            break;
        case SmoothScrollEngine::TimerChange::none:
            break;
    }
    return true;
}

bool SmoothScrollingTool::post(const SmoothScrollEngine::Scroll& scroll) {
    auto event = platform_.events.makeScrollEvent(std::nullopt, EventSystem::ScrollUnit::pixel,
                                                  scroll.vertical, scroll.horizontal);
    if (!event) {
        if (lastError_ != kPostFailed) {
            setLastError(kPostFailed);
        }
        return false;
    }
    event->setIntegerField(eventField::sourceUserData, ownEventTag::scroll);
    event->setIntegerField(eventField::scrollIsContinuous, 1);
    platform_.events.post(EventSystem::Location::session, *event);
    if (lastError_ == kPostFailed) {
        setLastError({});
    }
    return true;
}

void SmoothScrollingTool::setSpeed(double speed) {
    if (!isUsableSpeed(speed)) {
        return;
    }
    engine_.setSpeed(speed);
    platform_.preferences.set(kSpeedKey, speed);
    publish();
}

void SmoothScrollingTool::setGlide(Glide glide) {
    engine_.setGlide(glide);
    platform_.preferences.set(kGlideKey, std::string(rawValue(glide)));
    publish();
}

void SmoothScrollingTool::openMouseSettings() {
    if (!platform_.workspace.openURL(kMouseSettingsURL)) {
        setLastError("Couldn't open Mouse Settings. Open System Settings › Mouse yourself.");
    }
}

void SmoothScrollingTool::setLastError(std::string error) {
    lastError_ = std::move(error);
    publish();
}

}  // namespace quorvane
