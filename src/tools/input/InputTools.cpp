#include "tools/input/InputTools.hpp"

#include "tools/input/MouseButtonsTool.hpp"
#include "tools/input/ScrollDirectionTool.hpp"
#include "tools/input/SmoothScrollingTool.hpp"

namespace quorvane {

const ToolFactories& inputTools() {
    static const ToolFactories factories = {
        {"mouse-buttons", &buildTool<MouseButtonsTool>},
        {"scroll-direction", &buildTool<ScrollDirectionTool>},
        {"smooth-scrolling", &buildTool<SmoothScrollingTool>},
    };
    return factories;
}

}  // namespace quorvane
