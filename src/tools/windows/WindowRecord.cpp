#include "tools/windows/WindowRecord.hpp"

#include <cmath>

namespace quorvane {

Json WindowRecord::toJson() const {
    Json json = Json::emptyObject();
    json.set("bundleID", bundleID);
    json.set("appName", appName);
    json.set("title", title);
    Json rect = Json::emptyObject();
    rect.set("x", frame.origin.x);
    rect.set("y", frame.origin.y);
    rect.set("width", frame.size.width);
    rect.set("height", frame.size.height);
    json.set("frame", std::move(rect));
    return json;
}

std::optional<WindowRecord> WindowRecord::fromJson(const Json& json) {
    const Json* bundle = json.find("bundleID");
    const Json* name = json.find("appName");
    const Json* title = json.find("title");
    const Json* frame = json.find("frame");
    if (!bundle || !bundle->string() || !name || !name->string() || !title || !title->string() ||
        !frame) {
        return std::nullopt;
    }
    double values[4] = {};
    const char* keys[4] = {"x", "y", "width", "height"};
    for (int i = 0; i < 4; ++i) {
        const Json* value = frame->find(keys[i]);
        const auto number = value ? value->number() : std::nullopt;
        if (!number || !std::isfinite(*number)) {
            return std::nullopt;
        }
        values[i] = *number;
    }
    if (values[2] <= 0 || values[3] <= 0) {
        return std::nullopt;
    }
    return WindowRecord{*bundle->string(), *name->string(), *title->string(),
                        Rect(values[0], values[1], values[2], values[3])};
}

}  // namespace quorvane
