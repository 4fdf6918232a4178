#pragma once

#include <optional>
#include <string>

#include "base/Json.hpp"
#include "base/Rect.hpp"

namespace quorvane {

// One window of an arrangement: whose it is, which of its windows (by title), and where it was,
// in accessibility coordinates (origin at the top left of the primary display, y downward).
struct WindowRecord {
    std::string bundleID;
    std::string appName;
    std::string title;
    Rect frame;

    Json toJson() const;
    // Nothing when a field is missing or of the wrong kind, or the frame is not finite.
    static std::optional<WindowRecord> fromJson(const Json& json);
    friend bool operator==(const WindowRecord&, const WindowRecord&) = default;
};

}  // namespace quorvane
