#include "tools/system/SystemTools.hpp"

#include "tools/system/AppUninstallerTool.hpp"
#include "tools/system/ArchivesTool.hpp"
#include "tools/system/BatteryLimitTool.hpp"
#include "tools/system/ColorPickerTool.hpp"
#include "tools/system/DefaultAppsTool.hpp"
#include "tools/system/DeviceBatteriesTool.hpp"
#include "tools/system/DisplayBrightnessTool.hpp"
#include "tools/system/FinderCutTool.hpp"
#include "tools/system/FinderNewFileTool.hpp"
#include "tools/system/FitMoreMenuBarIconsTool.hpp"
#include "tools/system/FolderIconsTool.hpp"
#include "tools/system/FreeUpSpaceTool.hpp"
#include "tools/system/HideMenuBarIconsTool.hpp"
#include "tools/system/KeepAwakeTool.hpp"
#include "tools/system/LockScreenTool.hpp"
#include "tools/system/MenuBarCalendarTool.hpp"
#include "tools/system/MenuBarStatsTool.hpp"
#include "tools/system/PowerScheduleTool.hpp"
#include "tools/system/PreferenceFlipTool.hpp"
#include "tools/system/PresentationModeTool.hpp"
#include "tools/system/SafeDrivesTool.hpp"
#include "tools/system/ScreenRecorderTool.hpp"
#include "tools/system/ScreenshotScreenTool.hpp"
#include "tools/system/ScreenshotSettingsTool.hpp"
#include "tools/system/StartupItemsTool.hpp"
#include "tools/system/TextFromScreenTool.hpp"

namespace quorvane {

const ToolFactories& systemTools() {
    static const ToolFactories factories = {
        {"better-finder", &PreferenceFlipTool::build},
        {"fit-more-menu-bar-icons", &buildTool<FitMoreMenuBarIconsTool>},
        {"hide-desktop-icons", &PreferenceFlipTool::build},
        {"hide-menu-icons", &PreferenceFlipTool::build},
        {"instant-dock", &PreferenceFlipTool::build},
        {"no-ds-store", &PreferenceFlipTool::build},
        {"photos-auto-open", &PreferenceFlipTool::build},
        {"screenshot-settings", &buildTool<ScreenshotSettingsTool>},
        {"show-hidden-files", &PreferenceFlipTool::build},
        {"keep-awake", &buildTool<KeepAwakeTool>},
        {"lock-screen", &buildTool<LockScreenTool>},
        {"presentation-mode", &buildTool<PresentationModeTool>},
        {"finder-cut", &buildTool<FinderCutTool>},
        {"finder-new-file", &buildTool<FinderNewFileTool>},
        {"archives", &buildTool<ArchivesTool>},
        {"app-uninstaller", &buildTool<AppUninstallerTool>},
        {"free-up-space", &buildTool<FreeUpSpaceTool>},
        {"startup-items", &buildTool<StartupItemsTool>},
        {"screen-recorder", &buildTool<ScreenRecorderTool>},
        {"screenshot-screen", &buildTool<ScreenshotScreenTool>},
        {"text-from-screen", &buildTool<TextFromScreenTool>},
        {"color-picker", &buildTool<ColorPickerTool>},
        {"folder-icons", &buildTool<FolderIconsTool>},
        {"default-apps", &buildTool<DefaultAppsTool>},
        {"menu-bar-stats", &buildTool<MenuBarStatsTool>},
        {"menu-bar-calendar", &buildTool<MenuBarCalendarTool>},
        {"display-brightness", &buildTool<DisplayBrightnessTool>},
        {"hide-menu-bar-icons", &buildTool<HideMenuBarIconsTool>},
        {"power-schedule", &buildTool<PowerScheduleTool>},
        {"battery-limit", &buildTool<BatteryLimitTool>},
        {"device-batteries", &buildTool<DeviceBatteriesTool>},
        {"safe-drives", &buildTool<SafeDrivesTool>},
    };
    return factories;
}

}  // namespace quorvane
