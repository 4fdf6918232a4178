#include <cstdio>

#include "tools/keyboard/HoldToQuitTool.hpp"

namespace quorvane {

SettingsPage HoldToQuitTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back({SettingsRow::Slider{"Hold for", kMinimumHold, kMaximumHold, 0.1,
                                                [this] { return holdSeconds(); },
                                                [this](double seconds) { setHoldSeconds(seconds); },
                                                [](double seconds) {
                                                    char text[16];
                                                    std::snprintf(text, sizeof text, "%.1f s",
                                                                  seconds);
                                                    return std::string(text);
                                                }},
                            {}});
    section.rows.push_back(
        {SettingsRow::Note{"A quick ⌘Q does nothing. Keep ⌘Q held until the bar is full and the "
                           "app in front quits; let go early and nothing happens. Apps may still "
                           "ask to save your work. The app's own Quit menu command is not "
                           "affected."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
