#include "tools/system/PowerScheduleTool.hpp"

#include <cstdlib>

#include "app/AdministratorCommand.hpp"
#include "platform/PowerManagement.hpp"

namespace quorvane {

SettingsPage PowerScheduleTool::settingsPage() {
    // One part of the schedule changed through a row; the rest stays as it is.
    const auto change = [this](auto edit) {
        auto changed = schedule_;
        edit(changed);
        setSchedule(changed);
    };
    const auto daysRow = [this, change](int PowerSchedule::*days) {
        std::vector<SettingsRow::ChoiceOption> options;
        for (const int choice : PowerSchedule::dayChoices()) {
            auto title = PowerSchedule::daysTitle(choice);
            title[0] = static_cast<char>(title[0] - 'a' + 'A');
            options.push_back({std::to_string(choice), title});
        }
        return SettingsRow::Choice{
            "Days", std::move(options), [this, days] { return std::to_string(schedule_.*days); },
            [change, days](const std::string& value) {
                change([&](PowerSchedule& s) {
                    s.*days = PowerSchedule::validDays(std::strtoll(value.c_str(), nullptr, 10),
                                                       PowerSchedule::kEveryDay);
                });
            }};
    };
    const auto timeRow = [this, change](const char* placeholder, int PowerSchedule::*minutes) {
        return SettingsRow::TextField{
            "At", placeholder,
            [this, minutes] { return PowerSchedule::timeText(schedule_.*minutes); },
            [this, change, minutes](const std::string& text) {
                if (const auto parsed = PowerSchedule::parseTime(text)) {
                    change([&](PowerSchedule& s) { s.*minutes = *parsed; });
                } else {
                    lastError_ = "“" + text + "” is not a time of day; write it as 07:30 or 18:45.";
                    publish();
                }
            }};
    };

    SettingsSection start{"Start", {}, ""};
    start.rows.push_back(
        {SettingsRow::Toggle{"Wake or start up the Mac", [this] { return schedule_.wake; },
                             [change](bool on) { change([&](PowerSchedule& s) { s.wake = on; }); },
                             ""},
         {}});
    const auto wakeShown = [this] { return schedule_.wake; };
    start.rows.push_back({daysRow(&PowerSchedule::wakeDays), wakeShown});
    start.rows.push_back({timeRow("07:30", &PowerSchedule::wakeMinutes), wakeShown});

    SettingsSection end{"End", {}, ""};
    end.rows.push_back(
        {SettingsRow::Choice{"Then",
                             {{"none", "Nothing"},
                              {"sleep", "Sleep"},
                              {"shutdown", "Shut Down"},
                              {"restart", "Restart"}},
                             [this] { return PowerSchedule::rawValue(schedule_.stop); },
                             [change](const std::string& value) {
                                 change([&](PowerSchedule& s) {
                                     s.stop = PowerSchedule::stopFromRaw(value).value_or(
                                         PowerSchedule::Stop::none);
                                 });
                             }},
         {}});
    const auto stopShown = [this] { return schedule_.stop != PowerSchedule::Stop::none; };
    end.rows.push_back({daysRow(&PowerSchedule::stopDays), stopShown});
    end.rows.push_back({timeRow("23:00", &PowerSchedule::stopMinutes), stopShown});
    if (running_) {
        end.rows.push_back(
            {SettingsRow::Note{"Your Mac's schedule now: " +
                               PowerSchedule::describe(platform_.power.copyRepeatingPowerEvents())},
             {}});
    }
    if (request_) {
        end.rows.push_back({SettingsRow::Note{AdministratorCommand::kWaitingNote}, {}});
    }
    end.rows.push_back(SettingsRow::errorWarning(lastError_));
    end.rows.push_back(
        {SettingsRow::Note{"macOS itself carries out the schedule, also while Quorvane is not "
                           "running. Changing it needs an administrator, so macOS asks for your "
                           "password each time. A MacBook that is shut down may start only when "
                           "it is connected to power. The schedule your Mac had before is put "
                           "back when you turn this off."},
         {}});
    SettingsPage page;
    page.add(std::move(start));
    page.add(std::move(end));
    return page;
}

}  // namespace quorvane
