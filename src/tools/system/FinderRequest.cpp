#include "tools/system/FinderRequest.hpp"

#include <algorithm>

#include "base/Json.hpp"

namespace quorvane {

namespace {

constexpr const char* kNewFile = "new-file";
constexpr const char* kCopyPath = "copy-path";

bool isAbsolute(const std::string& path) {
    return path.starts_with("/");
}

// A plain extension: letters and digits, nothing that could reach another folder.
bool isPlainKind(const std::string& kind) {
    return kind.size() <= 16 && std::all_of(kind.begin(), kind.end(), [](char c) {
               return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
           });
}

}  // namespace

std::optional<FinderRequest> FinderRequest::decode(const std::string& message) {
    const auto json = Json::parse(message);
    if (!json || json->object() == nullptr) {
        return std::nullopt;
    }
    const Json* action = json->find("action");
    if (action == nullptr || action->string() == nullptr) {
        return std::nullopt;
    }
    FinderRequest request;
    if (*action->string() == kNewFile) {
        const Json* folder = json->find("folder");
        const Json* kind = json->find("kind");
        if (folder == nullptr || folder->string() == nullptr || !isAbsolute(*folder->string())) {
            return std::nullopt;
        }
        request.action = Action::newFile;
        request.folder = *folder->string();
        if (kind != nullptr) {
            if (kind->string() == nullptr || !isPlainKind(*kind->string())) {
                return std::nullopt;
            }
            request.kind = *kind->string();
        }
        return request;
    }
    if (*action->string() == kCopyPath) {
        const Json* items = json->find("items");
        if (items == nullptr || items->array() == nullptr || items->array()->empty()) {
            return std::nullopt;
        }
        request.action = Action::copyPath;
        for (const Json& item : *items->array()) {
            if (item.string() == nullptr || !isAbsolute(*item.string())) {
                return std::nullopt;
            }
            request.items.push_back(*item.string());
        }
        return request;
    }
    return std::nullopt;
}

std::string FinderRequest::encode() const {
    Json json = Json::emptyObject();
    if (action == Action::newFile) {
        json.set("action", kNewFile);
        json.set("folder", folder);
        json.set("kind", kind);
    } else {
        json.set("action", kCopyPath);
        Json list = Json::emptyArray();
        for (const auto& item : items) {
            list.push(item);
        }
        json.set("items", std::move(list));
    }
    return json.serialize();
}

}  // namespace quorvane
