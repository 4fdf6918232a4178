#include "tools/system/KeepAwakeTool.hpp"

#include <cstdlib>

#include "app/ToolRegistry.hpp"
#include "platform/NotificationBus.hpp"
#include "platform/Preferences.hpp"
#include "tools/system/KeepAwakePlan.hpp"

namespace quorvane {

KeepAwakeTool::KeepAwakeTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      minutes_(KeepAwakePlan::validMinutes(platform.preferences.integer(kMinutesKey))),
      display_(platform.preferences.boolean(kDisplayKey).value_or(true)) {}

KeepAwakeTool::~KeepAwakeTool() {
    stop();
}

void KeepAwakeTool::start() {
    if (running_) {
        return;
    }
    running_ = true;
    hold();
}

void KeepAwakeTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    timer_.cancel();
    endsAt_.reset();
    assertion_.reset();
    lastError_.reset();
    publish();
}

void KeepAwakeTool::hold() {
    timer_.cancel();
    endsAt_.reset();
    // The old assertion goes first: two at once would only hide a failure to take the new one.
    assertion_.reset();
    assertion_ = std::make_unique<PowerAssertion>(
        platform_.power, KeepAwakePlan::assertionType(display_), kAssertionName);
    lastError_ = assertion_->error();
    if (assertion_->isHeld() && minutes_ > 0) {
        const Seconds duration{static_cast<double>(minutes_) * 60.0};
        endsAt_ = platform_.scheduler.now() + duration;
        timer_ = platform_.scheduler.after(duration, [this] { expire(); });
    }
    publish();
}

void KeepAwakeTool::expire() {
    assertion_.reset();
    endsAt_.reset();
    publish();
    // The registry does the rest: it stops this tool and records it as off.
    platform_.notifications.post(ToolRegistry::kTurnedItselfOff, id());
}

std::optional<Seconds> KeepAwakeTool::remaining() const {
    if (!endsAt_) {
        return std::nullopt;
    }
    return *endsAt_ - platform_.scheduler.now();
}

void KeepAwakeTool::setMinutes(std::int64_t minutes) {
    minutes_ = KeepAwakePlan::validMinutes(minutes);
    platform_.preferences.set(kMinutesKey, PreferenceValue(minutes_));
    if (running_) {
        hold();  // the new time counts from now
    } else {
        publish();
    }
}

void KeepAwakeTool::setKeepsDisplayOn(bool on) {
    display_ = on;
    platform_.preferences.set(kDisplayKey, PreferenceValue(on));
    if (running_) {
        hold();
    } else {
        publish();
    }
}

SettingsPage KeepAwakeTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    std::vector<SettingsRow::ChoiceOption> options;
    for (const auto minutes : KeepAwakePlan::durationChoices()) {
        options.push_back({std::to_string(minutes), KeepAwakePlan::durationTitle(minutes)});
    }
    section.rows.push_back({SettingsRow::Choice{"Keep awake", std::move(options),
                                                [this] { return std::to_string(minutes_); },
                                                [this](const std::string& value) {
                                                    setMinutes(
                                                        std::strtoll(value.c_str(), nullptr, 10));
                                                }},
                            {}});
    section.rows.push_back(
        {SettingsRow::Toggle{"Keep the display on too", [this] { return display_; },
                             [this](bool on) { setKeepsDisplayOn(on); }, ""},
         {}});
    if (isKeepingAwake()) {
        const auto left = remaining();
        section.rows.push_back(
            {SettingsRow::Note{left ? "Keeping your Mac awake: " +
                                          KeepAwakePlan::remainingText(*left)
                                    : "Keeping your Mac awake until you turn this off."},
             {}});
    }
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{"While on, your Mac does not go to sleep by itself, and with the "
                           "display option the screen stays on too. When the time is up this "
                           "turns itself off. It changes none of your Energy settings. It cannot "
                           "stop sleep when you close a MacBook's lid or choose Sleep yourself."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> KeepAwakeTool::control() {
    // No action: pressing the lit tile turns the tool off, which lets the Mac sleep again.
    return ToolControl{"Keep Awake", "cup.and.saucer.fill", [this] { return isKeepingAwake(); },
                       nullptr};
}

}  // namespace quorvane
