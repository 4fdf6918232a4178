#include "tools/windows/WindowSnapshot.hpp"

#include <algorithm>

namespace quorvane {

std::string WindowSnapshot::displayKey(std::vector<std::string> displayIDs) {
    std::sort(displayIDs.begin(), displayIDs.end());
    std::string key;
    for (const auto& id : displayIDs) {
        key += (key.empty() ? "" : "+") + id;
    }
    return key;
}

std::vector<std::string> WindowSnapshot::bundleIDs() const {
    std::vector<std::string> ids;
    for (const auto& window : windows) {
        if (std::find(ids.begin(), ids.end(), window.bundleID) == ids.end()) {
            ids.push_back(window.bundleID);
        }
    }
    return ids;
}

Json WindowSnapshot::toJson() const {
    Json json = Json::emptyObject();
    Json ids = Json::emptyArray();
    for (const auto& id : displays) {
        ids.push(id);
    }
    json.set("displays", std::move(ids));
    Json list = Json::emptyArray();
    for (const auto& window : windows) {
        list.push(window.toJson());
    }
    json.set("windows", std::move(list));
    json.set("date", date);
    return json;
}

std::optional<WindowSnapshot> WindowSnapshot::fromJson(const Json& json) {
    const Json* ids = json.find("displays");
    const Json* list = json.find("windows");
    const Json* date = json.find("date");
    if (!ids || !ids->array() || !list || !list->array() || !date || !date->number()) {
        return std::nullopt;
    }
    WindowSnapshot snapshot;
    snapshot.date = *date->number();
    for (const auto& id : *ids->array()) {
        if (!id.string()) {
            return std::nullopt;
        }
        snapshot.displays.push_back(*id.string());
    }
    std::sort(snapshot.displays.begin(), snapshot.displays.end());
    for (const auto& element : *list->array()) {
        auto window = WindowRecord::fromJson(element);
        if (!window) {
            return std::nullopt;
        }
        snapshot.windows.push_back(std::move(*window));
    }
    return snapshot;
}

}  // namespace quorvane
