#include "tools/sound/StopMusicTool.hpp"

namespace quorvane {

SettingsPage StopMusicTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Note{"When Music opens by itself, because headphones were plugged in, a "
                           "Bluetooth device connected or the play key was pressed, it is quit "
                           "right away. Music you open yourself, from the Dock, Spotlight or a "
                           "song, stays open. It may show for a moment before it quits."},
         {}});
    section.rows.push_back({SettingsRow::Note{"Stopped so far: " + std::to_string(stoppedCount_)},
                            [this] { return stoppedCount_ > 0; }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
