#include "tools/keyboard/ClipItem.hpp"

#include "base/Base64.hpp"

namespace quorvane {

const char* rawValue(ClipItem::Kind kind) {
    switch (kind) {
        case ClipItem::Kind::text:
            return "text";
        case ClipItem::Kind::image:
            return "image";
        case ClipItem::Kind::files:
            return "files";
    }
    return "text";
}

bool ClipItem::sameContent(const ClipItem& other) const {
    if (kind != other.kind) {
        return false;
    }
    switch (kind) {
        case Kind::text:
            return text == other.text;
        case Kind::image:
            return imageHash && other.imageHash && *imageHash == *other.imageHash;
        case Kind::files:
            return filePaths == other.filePaths;
    }
    return false;
}

Json ClipItem::toJson() const {
    Json json = Json::emptyObject();
    json.set("id", id.text());
    json.set("kind", rawValue(kind));
    if (text) {
        json.set("text", *text);
    }
    if (rich) {
        Json map = Json::emptyObject();
        for (const auto& [type, bytes] : *rich) {
            map.set(type, base64::encode(bytes));
        }
        json.set("rich", std::move(map));
    }
    if (filePaths) {
        Json paths = Json::emptyArray();
        for (const auto& path : *filePaths) {
            paths.push(path);
        }
        json.set("filePaths", std::move(paths));
    }
    if (imageType) {
        json.set("imageType", *imageType);
    }
    if (imageHash) {
        json.set("imageHash", *imageHash);
    }
    if (app) {
        json.set("app", *app);
    }
    json.set("date", date);
    return json;
}

std::optional<ClipItem> ClipItem::fromJson(const Json& json) {
    const auto optionalString = [&](const char* key, std::optional<std::string>& into) {
        const Json* member = json.find(key);
        if (member == nullptr || member->isNull()) {
            return true;
        }
        if (member->string() == nullptr) {
            return false;
        }
        into = *member->string();
        return true;
    };
    ClipItem item;
    const Json* id = json.find("id");
    const Json* kind = json.find("kind");
    const Json* date = json.find("date");
    if (id == nullptr || !id->string() || kind == nullptr || !kind->string() || date == nullptr ||
        !date->number()) {
        return std::nullopt;
    }
    const auto uuid = Uuid::parse(*id->string());
    if (!uuid) {
        return std::nullopt;
    }
    item.id = *uuid;
    if (*kind->string() == "text") {
        item.kind = Kind::text;
    } else if (*kind->string() == "image") {
        item.kind = Kind::image;
    } else if (*kind->string() == "files") {
        item.kind = Kind::files;
    } else {
        return std::nullopt;
    }
    item.date = *date->number();
    if (!optionalString("text", item.text) || !optionalString("imageType", item.imageType) ||
        !optionalString("imageHash", item.imageHash) || !optionalString("app", item.app)) {
        return std::nullopt;
    }
    if (const Json* rich = json.find("rich"); rich != nullptr && !rich->isNull()) {
        if (!rich->object()) {
            return std::nullopt;
        }
        auto& map = item.rich.emplace();
        for (const auto& [type, value] : *rich->object()) {
            auto bytes = value.string() ? base64::decode(*value.string()) : std::nullopt;
            if (!bytes) {
                return std::nullopt;
            }
            map.emplace(type, std::move(*bytes));
        }
    }
    if (const Json* paths = json.find("filePaths"); paths != nullptr && !paths->isNull()) {
        if (!paths->array()) {
            return std::nullopt;
        }
        auto& list = item.filePaths.emplace();
        for (const Json& path : *paths->array()) {
            if (!path.string()) {
                return std::nullopt;
            }
            list.push_back(*path.string());
        }
    }
    return item;
}

}  // namespace quorvane
