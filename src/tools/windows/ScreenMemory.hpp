#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "base/Rect.hpp"
#include "tools/windows/DisplayLayout.hpp"

namespace quorvane {

// Where each application's windows were last: the display (by its stable identifier) and the
// frame relative to that display's top-left corner, so the place survives the displays being
// rearranged. A new window goes back there; when that display is gone, to the same spot on the
// main display. Frames are accessibility coordinates.
class ScreenMemory {
public:
    struct Place {
        std::string displayID;
        Rect offsetFrame;  // origin relative to the display's frame origin
        friend bool operator==(const Place&, const Place&) = default;
    };

    // Remembers a window's frame for its application; nothing when no display holds its centre.
    void remember(const std::string& bundleID, const Rect& frame, const DisplayLayout& displays);
    void forget(const std::string& bundleID) { places_.erase(bundleID); }
    void clear() { places_.clear(); }
    const std::map<std::string, Place>& places() const { return places_; }

    // The frame for a new window of the application, kept inside the usable area; nothing when
    // the application has no place yet or the window is already there. With `keepSize` the
    // window keeps its own size and only moves.
    std::optional<Rect> placement(const std::string& bundleID, const Rect& window,
                                  const DisplayLayout& displays, bool keepSize) const;

    std::string encode() const;
    static std::optional<ScreenMemory> decode(std::string_view text);

private:
    std::map<std::string, Place> places_;
};

}  // namespace quorvane
