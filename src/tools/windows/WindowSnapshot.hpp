#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Json.hpp"
#include "tools/windows/WindowRecord.hpp"

namespace quorvane {

// The standard windows on screen at one moment, with the displays they were arranged on. The
// same arrangement only makes sense on the same displays, so a snapshot is keyed by that set.
struct WindowSnapshot {
    // Identifiers of the connected displays, sorted, so the order the system lists them in
    // does not matter.
    std::vector<std::string> displays;
    std::vector<WindowRecord> windows;
    // Seconds since 2001-01-01 UTC.
    double date = 0;

    // The key of a set of displays: the sorted identifiers joined by "+".
    static std::string displayKey(std::vector<std::string> displayIDs);
    std::string displayKey() const { return displayKey(displays); }
    // The applications the snapshot holds windows of, each once, in first-seen order.
    std::vector<std::string> bundleIDs() const;

    Json toJson() const;
    static std::optional<WindowSnapshot> fromJson(const Json& json);
    friend bool operator==(const WindowSnapshot&, const WindowSnapshot&) = default;
};

}  // namespace quorvane
