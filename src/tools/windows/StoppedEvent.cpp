#include "tools/windows/StoppedEvent.hpp"

#include <algorithm>

namespace quorvane {

Json StoppedEvent::toJson() const {
    Json json = Json::emptyObject();
    json.set("id", id.text());
    json.set("appName", appName);
    json.set("bundleID", bundleID);
    if (bundleURL) {
        json.set("bundleURL", *bundleURL);
    }
    json.set("date", date);
    json.set("isBackground", isBackground);
    return json;
}

std::optional<StoppedEvent> StoppedEvent::fromJson(const Json& json) {
    const Json* id = json.find("id");
    const Json* name = json.find("appName");
    const Json* bundle = json.find("bundleID");
    const Json* url = json.find("bundleURL");
    const Json* date = json.find("date");
    const Json* background = json.find("isBackground");
    if (!id || !id->string() || !name || !name->string() || !bundle || !bundle->string() || !date ||
        !date->number() || !background || !background->boolean() ||
        (url && !url->isNull() && !url->string())) {
        return std::nullopt;
    }
    const auto uuid = Uuid::parse(*id->string());
    if (!uuid) {
        return std::nullopt;
    }
    StoppedEvent event{*uuid,        *name->string(), *bundle->string(),
                       std::nullopt, *date->number(), *background->boolean()};
    if (url && url->string()) {
        event.bundleURL = *url->string();
    }
    return event;
}

void StoppedHistory::record(StoppedEvent event) {
    std::erase_if(events_, [&](const StoppedEvent& e) { return e.bundleID == event.bundleID; });
    events_.insert(events_.begin(), std::move(event));
    if (events_.size() > kLimit) {
        events_.resize(kLimit);
    }
}

void StoppedHistory::remove(const Uuid& id) {
    std::erase_if(events_, [&](const StoppedEvent& e) { return e.id == id; });
}

std::string StoppedHistory::encode() const {
    Json list = Json::emptyArray();
    for (const auto& event : events_) {
        list.push(event.toJson());
    }
    return list.serialize();
}

std::optional<StoppedHistory> StoppedHistory::decode(std::string_view text) {
    const auto json = Json::parse(text);
    if (!json || !json->array()) {
        return std::nullopt;
    }
    StoppedHistory history;
    for (const auto& element : *json->array()) {
        auto event = StoppedEvent::fromJson(element);
        if (!event) {
            return std::nullopt;
        }
        history.events_.push_back(std::move(*event));
    }
    if (history.events_.size() > kLimit) {
        history.events_.resize(kLimit);
    }
    return history;
}

}  // namespace quorvane
