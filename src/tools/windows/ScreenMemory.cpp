#include "tools/windows/ScreenMemory.hpp"

#include "base/Json.hpp"
#include "tools/windows/WindowRecord.hpp"

namespace quorvane {

void ScreenMemory::remember(const std::string& bundleID, const Rect& frame,
                            const DisplayLayout& displays) {
    const auto index = displays.displayContaining({frame.midX(), frame.midY()});
    if (!index) {
        return;
    }
    const Rect display = displays.frame(*index);
    places_[bundleID] = {displays.id(*index), frame.offsetBy(-display.minX(), -display.minY())};
}

std::optional<Rect> ScreenMemory::placement(const std::string& bundleID, const Rect& window,
                                            const DisplayLayout& displays, bool keepSize) const {
    const auto found = places_.find(bundleID);
    if (found == places_.end() || displays.count() == 0) {
        return std::nullopt;
    }
    // The first display is the main one, with the menu bar.
    const std::size_t index = displays.indexOf(found->second.displayID).value_or(0);
    const Rect display = displays.frame(index);
    Rect target = found->second.offsetFrame.offsetBy(display.minX(), display.minY());
    if (keepSize) {
        target.size = window.size;
    }
    target = displays.clampInto(target, index);
    if (target == window) {
        return std::nullopt;
    }
    return target;
}

std::string ScreenMemory::encode() const {
    // Each place reuses the window record's frame form, with the display beside it.
    Json json = Json::emptyObject();
    for (const auto& [bundleID, place] : places_) {
        Json entry = WindowRecord{bundleID, "", "", place.offsetFrame}.toJson();
        entry.set("displayID", place.displayID);
        json.set(bundleID, std::move(entry));
    }
    return json.serialize();
}

std::optional<ScreenMemory> ScreenMemory::decode(std::string_view text) {
    const auto json = Json::parse(text);
    if (!json || !json->object()) {
        return std::nullopt;
    }
    ScreenMemory memory;
    for (const auto& [bundleID, entry] : *json->object()) {
        const auto record = WindowRecord::fromJson(entry);
        const Json* display = entry.find("displayID");
        if (!record || !display || !display->string()) {
            return std::nullopt;
        }
        memory.places_[bundleID] = {*display->string(), record->frame};
    }
    return memory;
}

}  // namespace quorvane
