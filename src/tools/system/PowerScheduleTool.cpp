#include "tools/system/PowerScheduleTool.hpp"

#include <sstream>

#include "app/AdministratorCommand.hpp"
#include "app/ToolRegistry.hpp"
#include "platform/ChildProcessFailure.hpp"
#include "platform/ChildProcesses.hpp"
#include "platform/PowerManagement.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const auto& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

int minutesOr(std::optional<std::int64_t> stored, int fallback) {
    return stored && *stored >= 0 && *stored < 24 * 60 ? static_cast<int>(*stored) : fallback;
}

}  // namespace

PowerScheduleTool::PowerScheduleTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    const auto& prefs = platform.preferences;
    const PowerSchedule defaults;
    schedule_.wake = prefs.boolean(kWakeKey).value_or(defaults.wake);
    schedule_.wakeDays = PowerSchedule::validDays(prefs.integer(kWakeDaysKey), defaults.wakeDays);
    schedule_.wakeMinutes = minutesOr(prefs.integer(kWakeTimeKey), defaults.wakeMinutes);
    schedule_.stop =
        PowerSchedule::stopFromRaw(prefs.string(kStopKey).value_or("")).value_or(defaults.stop);
    schedule_.stopDays = PowerSchedule::validDays(prefs.integer(kStopDaysKey), defaults.stopDays);
    schedule_.stopMinutes = minutesOr(prefs.integer(kStopTimeKey), defaults.stopMinutes);
}

PowerScheduleTool::~PowerScheduleTool() {
    stop();
}

void PowerScheduleTool::start() {
    if (running_) {
        return;
    }
    // Turned on again while the window to put the user's schedule back is still up: that
    // request no longer stands, and the record still holds their schedule.
    request_.reset();
    running_ = true;
    lastError_.reset();
    const auto found = platform_.power.copyRepeatingPowerEvents();
    // Only the first start records the user's own schedule; after a failed restore the
    // record still holds it.
    if (!platform_.preferences.string(kOriginalKey)) {
        platform_.preferences.set(kOriginalKey,
                                  PreferenceValue(joined(PowerSchedule::pmsetArguments(found))));
    }
    if (found != schedule_.events()) {
        apply(schedule_.events(), "Setting the schedule");
    }
    publish();
}

void PowerScheduleTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    lastError_.reset();
    // A window still asking to set the schedule closes.
    request_.reset();
    // The registry also stops every tool when Quorvane quits, and when the Mac shuts down on
    // this very schedule. The schedule belongs to power management and works without
    // Quorvane, so it is put back only when the user has turned the tool off; a password
    // prompt during shutdown would hold the shutdown up.
    if (!platform_.preferences.boolean(ToolRegistry::enabledKey(id())).value_or(false)) {
        restore();
    }
    publish();
}

void PowerScheduleTool::tidy() {
    restore();
}

void PowerScheduleTool::restore() {
    const auto original = platform_.preferences.string(kOriginalKey);
    if (!original || request_) {
        return;
    }
    const auto now = PowerSchedule::pmsetArguments(platform_.power.copyRepeatingPowerEvents());
    if (joined(now) == *original) {
        platform_.preferences.remove(kOriginalKey);
        return;
    }
    requestPmset(words(*original), [this](const ChildProcessStatus& status) {
        if (!status.succeeded()) {
            lastError_ = "Putting your earlier schedule back failed: " +
                         childProcessFailure("osascript", status) +
                         ". Quorvane tries again the next time it starts.";
            return;
        }
        platform_.preferences.remove(kOriginalKey);
    });
    publish();
}

void PowerScheduleTool::apply(const RepeatingPowerEvents& events, const std::string& what) {
    requestPmset(
        PowerSchedule::pmsetArguments(events), [this, what](const ChildProcessStatus& status) {
            if (!status.succeeded()) {
                lastError_ = what + " failed: " + childProcessFailure("osascript", status) +
                             " (or the password was cancelled).";
            } else {
                lastError_.reset();
            }
        });
}

void PowerScheduleTool::requestPmset(const std::vector<std::string>& arguments,
                                     std::function<void(const ChildProcessStatus&)> done) {
    request_ = AdministratorCommand::start(
        platform_.childProcesses, kPmset, arguments, kPromptReason,
        [this, done = std::move(done)](const ChildProcessStatus& status) {
            request_.reset();
            done(status);
            publish();
        });
}

void PowerScheduleTool::setSchedule(const PowerSchedule& schedule) {
    const bool changed = schedule.events() != schedule_.events();
    if (running_ && changed && request_) {
        lastError_ =
            "The password window is still waiting for an answer; change the schedule after it.";
        publish();
        return;
    }
    schedule_ = schedule;
    store();
    if (running_ && changed) {
        apply(schedule_.events(), "Changing the schedule");
    }
    publish();
}

void PowerScheduleTool::store() const {
    auto& prefs = platform_.preferences;
    prefs.set(kWakeKey, PreferenceValue(schedule_.wake));
    prefs.set(kWakeDaysKey, PreferenceValue(static_cast<std::int64_t>(schedule_.wakeDays)));
    prefs.set(kWakeTimeKey, PreferenceValue(static_cast<std::int64_t>(schedule_.wakeMinutes)));
    prefs.set(kStopKey, PreferenceValue(PowerSchedule::rawValue(schedule_.stop)));
    prefs.set(kStopDaysKey, PreferenceValue(static_cast<std::int64_t>(schedule_.stopDays)));
    prefs.set(kStopTimeKey, PreferenceValue(static_cast<std::int64_t>(schedule_.stopMinutes)));
}

}  // namespace quorvane
