#include "tools/windows/WindowTools.hpp"

#include "tools/system/PreferenceFlipTool.hpp"
#include "tools/windows/StopFocusStealingTool.hpp"
#include "tools/windows/WindowDragTool.hpp"
#include "tools/windows/WindowSnapTool.hpp"

namespace quorvane {

const ToolFactories& windowsTools() {
    static const ToolFactories factories = {
        // Only a change to the Dock's preferences, so it shares the system tools' implementation.
        {"keep-spaces-in-order", &PreferenceFlipTool::build},
        {"stop-focus-stealing", &buildTool<StopFocusStealingTool>},
        {"window-drag", &buildTool<WindowDragTool>},
        {"window-snap", &buildTool<WindowSnapTool>},
    };
    return factories;
}

}  // namespace quorvane
