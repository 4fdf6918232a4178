#include "tools/windows/WindowTools.hpp"

#include "tools/system/PreferenceFlipTool.hpp"
#include "tools/windows/DimBackgroundTool.hpp"
#include "tools/windows/DockInstantSwitchTool.hpp"
#include "tools/windows/DockMinimizeTool.hpp"
#include "tools/windows/DockPreviewsTool.hpp"
#include "tools/windows/GreenButtonMaximizeTool.hpp"
#include "tools/windows/PinWindowTool.hpp"
#include "tools/windows/QuitOnLastWindowTool.hpp"
#include "tools/windows/RestoreWindowLayoutTool.hpp"
#include "tools/windows/StopFocusStealingTool.hpp"
#include "tools/windows/WindowDragTool.hpp"
#include "tools/windows/WindowLayoutsTool.hpp"
#include "tools/windows/WindowScreenMemoryTool.hpp"
#include "tools/windows/WindowSnapTool.hpp"
#include "tools/windows/WindowSwitcherTool.hpp"

namespace quorvane {

const ToolFactories& windowsTools() {
    static const ToolFactories factories = {
        // Only a change to the Dock's preferences, so it shares the system tools' implementation.
        {"keep-spaces-in-order", &PreferenceFlipTool::build},
        {"dim-background", &buildTool<DimBackgroundTool>},
        {"dock-instant-switch", &buildTool<DockInstantSwitchTool>},
        {"dock-minimize", &buildTool<DockMinimizeTool>},
        {"green-button-maximize", &buildTool<GreenButtonMaximizeTool>},
        {"pin-window", &buildTool<PinWindowTool>},
        {"quit-on-last-window", &buildTool<QuitOnLastWindowTool>},
        {"restore-window-layout", &buildTool<RestoreWindowLayoutTool>},
        {"stop-focus-stealing", &buildTool<StopFocusStealingTool>},
        {"window-drag", &buildTool<WindowDragTool>},
        {"window-layouts", &buildTool<WindowLayoutsTool>},
        {"window-screen-memory", &buildTool<WindowScreenMemoryTool>},
        {"window-snap", &buildTool<WindowSnapTool>},
        {"window-switcher", &buildTool<WindowSwitcherTool>},
        {"dock-previews", &buildTool<DockPreviewsTool>},
    };
    return factories;
}

}  // namespace quorvane
