#include "tools/system/BatteryLimitTool.hpp"

namespace quorvane {

SettingsPage BatteryLimitTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Stepper{"Stop charging at", ChargeLimitPolicy::kLowestLimit,
                              ChargeLimitPolicy::kHighestLimit, 5, [this] { return limit(); },
                              [this](std::int64_t value) { setLimit(static_cast<int>(value)); },
                              [](std::int64_t value) { return std::to_string(value) + "%"; }},
         {}});
    if (running_) {
        const auto now = charge();
        std::string state = now ? "The battery is at " + std::to_string(*now) + "%. " : "";
        state += !now          ? "This Mac reports no built-in battery."
                 : isHolding() ? "Charging is paused at the limit."
                               : "It charges as usual.";
        section.rows.push_back({SettingsRow::Note{state}, {}});
    }
    // What the helper needs is said whether the tool is on or not; while on, a missing
    // helper is the tool's error and is shown as such.
    if (lastError_) {
        section.rows.push_back({SettingsRow::Warning{*lastError_}, {}});
    } else {
        section.rows.push_back({SettingsRow::Note{helperText()}, {}});
    }
    const auto helper = platform_.chargingHelper.status();
    if (helper == ChargingHelper::Status::notRegistered) {
        section.rows.push_back(
            {SettingsRow::Button{"Install Helper…", [this] { installHelper(); }}, {}});
    } else if (helper == ChargingHelper::Status::enabled ||
               helper == ChargingHelper::Status::requiresApproval) {
        section.rows.push_back({SettingsRow::Button{"Remove Helper", [this] { removeHelper(); },
                                                    SettingsRow::ButtonRole::destructive},
                                {}});
    }
    section.rows.push_back(
        {SettingsRow::Note{
             "macOS gives apps no way to stop charging. Quorvane does it through a small helper "
             "that runs with administrator rights and does only one thing: switch the "
             "battery's charging off and on in the system management controller. That switch "
             "is not documented by Apple, so a macOS or firmware update may move it; this page "
             "then shows the failure. Charging resumes once the battery falls " +
             std::to_string(policy_.band()) +
             " points below the limit, so it does not start and stop all the time. When you "
             "turn this off, or Quorvane quits, charging is switched back on."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
