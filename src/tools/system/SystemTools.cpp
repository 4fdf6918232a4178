#include "tools/system/SystemTools.hpp"

#include "tools/system/BatteryLimitTool.hpp"
#include "tools/system/DeviceBatteriesTool.hpp"
#include "tools/system/FinderCutTool.hpp"
#include "tools/system/FitMoreMenuBarIconsTool.hpp"
#include "tools/system/KeepAwakeTool.hpp"
#include "tools/system/LockScreenTool.hpp"
#include "tools/system/PowerScheduleTool.hpp"
#include "tools/system/PreferenceFlipTool.hpp"
#include "tools/system/PresentationModeTool.hpp"
#include "tools/system/SafeDrivesTool.hpp"
#include "tools/system/ScreenshotSettingsTool.hpp"

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
        {"power-schedule", &buildTool<PowerScheduleTool>},
        {"battery-limit", &buildTool<BatteryLimitTool>},
        {"device-batteries", &buildTool<DeviceBatteriesTool>},
        {"safe-drives", &buildTool<SafeDrivesTool>},
    };
    return factories;
}

}  // namespace quorvane
