#include "tools/windows/WindowScreenMemoryTool.hpp"

#include <iterator>

#include "platform/Workspace.hpp"
#include "ui/AppEntries.hpp"

namespace quorvane {

SettingsPage WindowScreenMemoryTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "When you move or resize an app's window, Quorvane remembers the display and the "
             "spot. When the app next opens a window while it has none open, the window opens "
             "there. If that display is no longer connected, it opens at the same spot on the "
             "main display."},
         {}});
    main.rows.push_back(
        {SettingsRow::Toggle{"Restore the size too", [this] { return restoreSize_; },
                             [this](bool on) { setRestoresSize(on); }, ""},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "Only standard windows are placed; sheets, panels and pop-ups stay where their app "
             "puts them. Further windows of an app that already has one open, like the ones "
             "an app reopens when it starts, keep the app's own places. A window is never "
             "moved to another desktop (Space)."},
         {}});
    main.rows.push_back(
        {SettingsRow::ItemList{"Remembered apps",
                               [this] {
                                   std::vector<std::string> bundleIDs;
                                   for (const auto& entry : memory_.places()) {
                                       bundleIDs.push_back(entry.first);
                                   }
                                   std::vector<std::string> names;
                                   for (const auto& entry :
                                        appEntries(platform_.workspace, bundleIDs)) {
                                       names.push_back(entry.name);
                                   }
                                   return names;
                               },
                               [this](std::size_t index) {
                                   if (index < memory_.places().size()) {
                                       auto it = memory_.places().begin();
                                       std::advance(it, static_cast<std::ptrdiff_t>(index));
                                       forget(it->first);
                                   }
                               },
                               "No app yet. Move or resize a window and its app shows up here."},
         {}});
    main.rows.push_back({SettingsRow::Button{"Forget All", [this] { forgetAll(); },
                                             SettingsRow::ButtonRole::destructive},
                         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
