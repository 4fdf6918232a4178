#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Rect.hpp"
#include "platform/WindowInfo.hpp"
#include "tools/windows/OpenWindows.hpp"

namespace quorvane {

// Which windows the preview of a Dock icon lists, and where the preview goes. Accessibility
// coordinates throughout.
class DockPreviewPlan {
public:
    // More rows than this would run off a small screen; the front ones matter.
    static constexpr std::size_t kMaxWindows = 8;
    // Between the icon and the preview, so the preview never covers the icon itself.
    static constexpr double kGap = 8;

    enum class Edge { bottom, left, right };

    // The indexes in `windows` of the hovered app's windows, front to back as the window
    // server orders them (windows it does not list, on other Spaces, go last), at most
    // kMaxWindows. `bundleURLOf` names the application a process runs.
    static std::vector<std::size_t> windowsToShow(
        const std::string& itemURL, const std::vector<OpenWindows::Window>& windows,
        const std::function<std::string(int pid)>& bundleURLOf,
        const std::vector<WindowInfo>& order);
    // The window server's number of an accessibility window: same process, same frame.
    static std::optional<std::uint32_t> windowNumber(int pid, const Rect& frame,
                                                     const std::vector<WindowInfo>& order);
    // The display edge the Dock sits on, judged by the icon's nearest edge.
    static Edge dockEdge(const Rect& icon, const Rect& display);
    // Beside the icon, away from the Dock's edge, centred on the icon and kept inside `area`.
    static Rect panelFrame(const Rect& icon, Size panel, const Rect& area, Edge edge);
};

}  // namespace quorvane
