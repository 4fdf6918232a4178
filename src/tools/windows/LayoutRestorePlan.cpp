#include "tools/windows/LayoutRestorePlan.hpp"

#include <algorithm>
#include <optional>

namespace quorvane {

std::vector<std::string> LayoutRestorePlan::appsToLaunch(const std::vector<WindowRecord>& saved,
                                                         const std::vector<std::string>& running) {
    std::vector<std::string> missing;
    for (const auto& window : saved) {
        const auto& id = window.bundleID;
        if (!id.empty() && std::find(running.begin(), running.end(), id) == running.end() &&
            std::find(missing.begin(), missing.end(), id) == missing.end()) {
            missing.push_back(id);
        }
    }
    return missing;
}

std::vector<LayoutRestorePlan::Move> LayoutRestorePlan::make(const std::vector<WindowRecord>& saved,
                                                             const std::vector<WindowRecord>& open,
                                                             const DisplayLayout& displays) {
    std::vector<bool> used(saved.size(), false);
    std::vector<std::optional<std::size_t>> match(open.size());
    const auto claim = [&](std::size_t window, bool byTitle) {
        for (std::size_t s = 0; s < saved.size(); ++s) {
            if (!used[s] && saved[s].bundleID == open[window].bundleID &&
                (!byTitle || saved[s].title == open[window].title)) {
                used[s] = true;
                match[window] = s;
                return;
            }
        }
    };
    for (std::size_t w = 0; w < open.size(); ++w) {
        claim(w, true);
    }
    for (std::size_t w = 0; w < open.size(); ++w) {
        if (!match[w]) {
            claim(w, false);
        }
    }
    std::vector<Move> moves;
    if (displays.count() == 0) {
        return moves;
    }
    for (std::size_t w = 0; w < open.size(); ++w) {
        if (!match[w]) {
            continue;
        }
        const Rect frame = displays.clampToVisibleArea(saved[*match[w]].frame);
        if (frame != open[w].frame) {
            moves.push_back({w, frame});
        }
    }
    return moves;
}

}  // namespace quorvane
