#include "tools/keyboard/HoldToQuitTool.hpp"

#include <algorithm>

#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

HoldToQuitTool::HoldToQuitTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    if (const auto stored = platform_.preferences.number(kHoldKey);
        stored && *stored >= kMinimumHold && *stored <= kMaximumHold) {
        engine_.setHold(Seconds{*stored});
    }
}

void HoldToQuitTool::start() {
    stop();
    tap_ = EventTap::create(platform_.events,
                            {EventType::keyDown, EventType::keyUp, EventType::flagsChanged},
                            [this](EventType type, Event& event) { return handle(type, event); });
    if (!tap_) {
        setLastError(EventTap::refusedError("watch the keyboard"));
        return;
    }
    setLastError({});
}

void HoldToQuitTool::stop() {
    tap_.reset();
    ticker_.reset();
    if (engine_.isHolding()) {
        platform_.input.hud.hide();
    }
    engine_.reset();
    publish();
}

void HoldToQuitTool::setHoldSeconds(double seconds) {
    seconds = std::clamp(seconds, kMinimumHold, kMaximumHold);
    engine_.setHold(Seconds{seconds});
    platform_.preferences.set(kHoldKey, seconds);
    publish();
}

bool HoldToQuitTool::handle(EventType type, Event& event) {
    if (event.integerField(eventField::sourceUserData) == ownEventTag::key) {
        return true;
    }
    const auto outcome = engine_.handle(
        type, static_cast<std::uint16_t>(event.integerField(eventField::keyboardKeycode)),
        event.flags(), event.integerField(eventField::keyboardAutorepeat) != 0,
        platform_.scheduler.now());
    carryOut(outcome.action);
    return outcome.pass;
}

void HoldToQuitTool::carryOut(HoldToQuitEngine::Action action) {
    using Action = HoldToQuitEngine::Action;
    switch (action) {
        case Action::none:
            return;
        case Action::show:
            platform_.input.hud.show(engine_.card(platform_.scheduler.now()), false,
                                     engine_.hold() + Seconds{1}, true);
            if (!ticker_) {
                ticker_ = platform_.scheduler.every(kTickInterval, [this] {
                    carryOut(engine_.tick(platform_.scheduler.now()).action);
                });
            }
            return;
        case Action::hide:
            ticker_.reset();
            platform_.input.hud.hide();
            return;
        case Action::quit: {
            ticker_.reset();
            platform_.input.hud.hide();
            const auto front = platform_.workspace.frontmostApplication();
            if (!front || !platform_.workspace.terminateApplication(front->pid)) {
                setLastError("Couldn't quit " +
                             (front ? front->name : std::string("the app in front")));
            } else if (!lastError_.empty()) {
                setLastError({});
            }
            return;
        }
    }
}

void HoldToQuitTool::setLastError(std::string error) {
    lastError_ = std::move(error);
    publish();
}

}  // namespace quorvane
