#include "tools/sound/MuteStartupSoundTool.hpp"

#include "app/AdministratorCommand.hpp"

namespace quorvane {

SettingsPage MuteStartupSoundTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Note{"Turning this on or off asks for an administrator's name and password "
                           "in the system's own window: the startup sound is a setting of your "
                           "Mac's firmware, which only an administrator may change."},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"It takes effect the next time your Mac starts, and lasts whether or "
                           "not Quorvane is running. Turning it off puts back exactly the setting "
                           "you had before."},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{AdministratorCommand::kWaitingNote}, [this] { return isWaiting(); }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    const auto stillMuted = [this] { return !running_ && !isWaiting() && hasBackup(); };
    section.rows.push_back(
        {SettingsRow::Warning{"The startup sound is still muted by Quorvane."}, stillMuted});
    section.rows.push_back(
        {SettingsRow::Button{"Turn the Startup Sound Back On…", [this] { restore(); }},
         stillMuted});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
