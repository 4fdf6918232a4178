#include "tools/keyboard/CleanKeyboardTool.hpp"

namespace quorvane {

SettingsPage CleanKeyboardTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back({SettingsRow::Button{"Lock Keyboard Now", [this] { lock(); }},
                            [this] { return isRunning_ && !isLocked(); }});
    section.rows.push_back(
        {SettingsRow::Toggle{"Also lock trackpad scrolling", [this] { return lockTrackpad_; },
                             [this](bool on) { setLocksTrackpad(on); }, "Clicks still unlock."},
         {}});
    section.rows.push_back(
        {SettingsRow::Stepper{
             "Unlock by itself after", 1, kMaximumMinutes, 1, [this] { return minutes_; },
             [this](std::int64_t m) { setMinutes(m); },
             [](std::int64_t m) { return std::to_string(m) + (m == 1 ? " minute" : " minutes"); }},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"While locked, every key, modifier and media key (volume, brightness, "
                           "play) is ignored. Click anywhere or press Esc five times to unlock. "
                           "The power button and Touch ID cannot be locked, and the pointer "
                           "still moves."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
