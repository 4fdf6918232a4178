#include "tools/system/PreferenceFlipTable.hpp"

#include <array>

namespace quorvane {

namespace {

using Domain = SystemPreferenceDomain;

const Domain kFinder = Domain::app("com.apple.finder");

const std::array<PreferenceFlipTable, 10>& tables() {
    static const std::array<PreferenceFlipTable, 10> all = {{
        {"keep-spaces-in-order", {{"mru-spaces", Domain::dock(), false}}, {"Dock"}, ""},
        // Both are reals in the Dock's own domain; written as integers the Dock ignores them.
        {"instant-dock",
         {{"autohide-delay", Domain::dock(), 0.0}, {"autohide-time-modifier", Domain::dock(), 0.0}},
         {"Dock"},
         "This only matters when the Dock is set to hide automatically."},
        // The tool's own settings decide these values; the table holds the system's defaults.
        {"screenshot-settings",
         {{"location", Domain::app("com.apple.screencapture"), std::nullopt},
          {"type", Domain::app("com.apple.screencapture"), "png"},
          {"disable-shadow", Domain::app("com.apple.screencapture"), false},
          {"show-thumbnail", Domain::app("com.apple.screencapture"), true},
          {"include-date", Domain::app("com.apple.screencapture"), true},
          {"name", Domain::app("com.apple.screencapture"), std::nullopt}},
         {"SystemUIServer"},
         "The next screenshot you take uses these settings."},
        {"photos-auto-open",
         {{"disableHotPlug", Domain::appThisMac("com.apple.ImageCapture"), true}},
         {},
         "Photos stops opening the next time you connect a device. Apps you set yourself to "
         "open for a particular device in Image Capture still do."},
        {"hide-desktop-icons", {{"CreateDesktop", kFinder, false}}, {"Finder"}, ""},
        {"show-hidden-files", {{"AppleShowAllFiles", kFinder, true}}, {"Finder"}, ""},
        {"better-finder",
         {{"AppleShowAllExtensions", Domain::global(), true},
          {"_FXSortFoldersFirst", kFinder, true},
          {"_FXSortFoldersFirstOnDesktop", kFinder, true},
          {"FXDefaultSearchScope", kFinder, "SCcf"},
          {"_FXShowPosixPathInTitle", kFinder, true},
          {"ShowPathbar", kFinder, true}},
         {"Finder"},
         "Open and save panels of other apps show extensions after those apps are quit and "
         "opened again."},
        {"no-ds-store",
         {{"DSDontWriteNetworkStores", Domain::app("com.apple.desktopservices"), true},
          {"DSDontWriteUSBStores", Domain::app("com.apple.desktopservices"), true}},
         {},
         "Log out and back in for this to take effect. .DS_Store files already on your drives "
         "stay there."},
        // The tool's spacing setting decides these values; the table holds its default.
        {"fit-more-menu-bar-icons",
         {{"NSStatusItemSpacing", Domain::globalThisMac(), 6},
          {"NSStatusItemSelectionPadding", Domain::globalThisMac(), 6}},
         {"ControlCenter", "SystemUIServer"},
         "Icons of other apps take the new spacing when those apps are quit and opened again, or "
         "after you log out and back in."},
        {"hide-menu-icons",
         {{"NSMenuEnableActionImages", Domain::global(), false}},
         {},
         "Apps pick this up when they are quit and opened again. Only macOS 26 and later show "
         "these icons, so on earlier versions nothing changes."},
    }};
    return all;
}

}  // namespace

const PreferenceFlipTable* PreferenceFlipTable::find(const std::string& id) {
    for (const auto& table : tables()) {
        if (table.id == id) {
            return &table;
        }
    }
    return nullptr;
}

}  // namespace quorvane
