#include "tools/windows/DockPreviewPlan.hpp"

#include <algorithm>
#include <cmath>

#include "tools/windows/DockItems.hpp"

namespace quorvane {

std::vector<std::size_t> DockPreviewPlan::windowsToShow(
    const std::string& itemURL, const std::vector<OpenWindows::Window>& windows,
    const std::function<std::string(int pid)>& bundleURLOf, const std::vector<WindowInfo>& order) {
    std::vector<std::pair<std::size_t, std::size_t>> ranked;  // (rank, index)
    if (itemURL.empty()) {
        return {};
    }
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto& window = windows[i];
        if (!DockItems::sameBundle(bundleURLOf(window.pid), itemURL)) {
            continue;
        }
        std::size_t rank = order.size();
        for (std::size_t r = 0; r < order.size(); ++r) {
            if (order[r].pid == window.pid && order[r].bounds == window.record.frame) {
                rank = r;
                break;
            }
        }
        ranked.emplace_back(rank, i);
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::size_t> shown;
    for (const auto& [rank, index] : ranked) {
        if (shown.size() == kMaxWindows) {
            break;
        }
        shown.push_back(index);
    }
    return shown;
}

std::optional<std::uint32_t> DockPreviewPlan::windowNumber(int pid, const Rect& frame,
                                                           const std::vector<WindowInfo>& order) {
    for (const auto& window : order) {
        if (window.pid == pid && window.layer == 0 && window.bounds == frame) {
            return window.number;
        }
    }
    return std::nullopt;
}

DockPreviewPlan::Edge DockPreviewPlan::dockEdge(const Rect& icon, const Rect& display) {
    const double toBottom = std::fabs(display.maxY() - icon.midY());
    const double toLeft = std::fabs(icon.midX() - display.minX());
    const double toRight = std::fabs(display.maxX() - icon.midX());
    if (toBottom <= toLeft && toBottom <= toRight) {
        return Edge::bottom;
    }
    return toLeft <= toRight ? Edge::left : Edge::right;
}

Rect DockPreviewPlan::panelFrame(const Rect& icon, Size panel, const Rect& area, Edge edge) {
    Point origin;
    switch (edge) {
        case Edge::bottom:
            origin = {icon.midX() - panel.width / 2, icon.minY() - kGap - panel.height};
            break;
        case Edge::left:
            origin = {icon.maxX() + kGap, icon.midY() - panel.height / 2};
            break;
        case Edge::right:
            origin = {icon.minX() - kGap - panel.width, icon.midY() - panel.height / 2};
            break;
    }
    // Keep it on the screen: a far-left icon's preview starts at the screen's edge.
    origin.x = std::clamp(origin.x, area.minX(), std::max(area.minX(), area.maxX() - panel.width));
    origin.y = std::clamp(origin.y, area.minY(), std::max(area.minY(), area.maxY() - panel.height));
    return {origin, panel};
}

}  // namespace quorvane
