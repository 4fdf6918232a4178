#include "tools/keyboard/PastePlainTextTool.hpp"

namespace quorvane {

SettingsPage PastePlainTextTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(shortcut_.row("Paste as plain text"));
    section.rows.push_back(
        {SettingsRow::Note{"Pastes what you copied without its fonts, colors and links. Your "
                           "clipboard is put back right after, exactly as it was, unless you "
                           "copy something else in the meantime."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
