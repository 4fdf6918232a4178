#include "tools/windows/WindowSnapshots.hpp"

#include "platform/Preferences.hpp"

namespace quorvane {

const WindowSnapshot* WindowSnapshots::find(const std::string& name) const {
    const auto found = snapshots_.find(name);
    return found == snapshots_.end() ? nullptr : &found->second;
}

std::string WindowSnapshots::encode() const {
    Json json = Json::emptyObject();
    for (const auto& [name, snapshot] : snapshots_) {
        json.set(name, snapshot.toJson());
    }
    return json.serialize();
}

std::optional<WindowSnapshots> WindowSnapshots::decode(std::string_view text) {
    const auto json = Json::parse(text);
    if (!json || !json->object()) {
        return std::nullopt;
    }
    WindowSnapshots result;
    for (const auto& [name, value] : *json->object()) {
        auto snapshot = WindowSnapshot::fromJson(value);
        if (!snapshot) {
            return std::nullopt;
        }
        result.snapshots_.emplace(name, std::move(*snapshot));
    }
    return result;
}

WindowSnapshots WindowSnapshots::load(const Preferences& preferences, const std::string& key,
                                      bool& unreadable) {
    unreadable = false;
    const auto data = preferences.data(key);
    if (!data) {
        return {};
    }
    auto decoded =
        decode(std::string_view(reinterpret_cast<const char*>(data->data()), data->size()));
    unreadable = !decoded;
    return decoded.value_or(WindowSnapshots{});
}

void WindowSnapshots::save(Preferences& preferences, const std::string& key) const {
    const std::string text = encode();
    preferences.set(key, PreferenceValue::Data(text.begin(), text.end()));
}

}  // namespace quorvane
