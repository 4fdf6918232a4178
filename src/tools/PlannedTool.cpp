#include "tools/PlannedTool.hpp"

namespace quorvane {

SettingsPage PlannedTool::settingsPage() {
    SettingsPage page;
    page.add({"", {{SettingsRow::Note{kUnavailableNote}, {}}}, ""});
    return page;
}

}  // namespace quorvane
