#include "tools/keyboard/Mapping.hpp"

namespace quorvane {

Json Mapping::toJson() const {
    Json json = Json::emptyObject();
    json.set("id", id.text());
    json.set("from", rawValue(from));
    json.set("to", rawValue(to));
    json.set("keyboards", rawValue(keyboards));
    return json;
}

std::optional<Mapping> Mapping::fromJson(const Json& json) {
    const auto text = [&json](std::string_view key) -> std::string_view {
        const Json* member = json.find(key);
        return member && member->string() ? std::string_view(*member->string())
                                          : std::string_view();
    };
    const auto id = Uuid::parse(text("id"));
    const auto from = keyFromRawValue(text("from"));
    const auto to = keyFromRawValue(text("to"));
    const auto keyboards = keyboardsFromRawValue(text("keyboards"));
    if (!id || !from || !to || !keyboards) {
        return std::nullopt;
    }
    return Mapping{*id, *from, *to, *keyboards};
}

std::string Mapping::encode(const std::vector<Mapping>& mappings) {
    Json list = Json::emptyArray();
    for (const auto& mapping : mappings) {
        list.push(mapping.toJson());
    }
    return list.serialize();
}

std::optional<std::vector<Mapping>> Mapping::decode(std::string_view text) {
    const auto json = Json::parse(text);
    if (!json || !json->array()) {
        return std::nullopt;
    }
    std::vector<Mapping> mappings;
    for (const auto& element : *json->array()) {
        auto mapping = fromJson(element);
        if (!mapping) {
            return std::nullopt;
        }
        mappings.push_back(*mapping);
    }
    return mappings;
}

}  // namespace quorvane
