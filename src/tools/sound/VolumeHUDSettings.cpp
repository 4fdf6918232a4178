#include "tools/sound/VolumeHUDTool.hpp"

namespace quorvane {

SettingsPage VolumeHUDTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Note{"The volume keys show the large volume card with its bar of 16 "
                           "steps in the middle of the screen you are working on. Hold ⌥⇧ "
                           "for finer steps of a quarter. Outputs without a volume control "
                           "(many displays and audio interfaces) keep the system's notice, and "
                           "the brightness keys are not changed."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
