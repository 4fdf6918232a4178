#include "portable/MemoryPasteboard.hpp"

#include <algorithm>

#include "base/FileURL.hpp"
#include "platform/PasteboardType.hpp"

namespace quorvane {

std::vector<std::string> MemoryPasteboard::types() {
    std::vector<std::string> types;
    for (const PasteboardItem& item : items_) {
        for (const auto& representation : item.representations) {
            if (std::find(types.begin(), types.end(), representation.type) == types.end()) {
                types.push_back(representation.type);
            }
        }
    }
    return types;
}

std::vector<std::vector<std::string>> MemoryPasteboard::itemTypes() {
    std::vector<std::vector<std::string>> types;
    for (const PasteboardItem& item : items_) {
        auto& list = types.emplace_back();
        for (const auto& representation : item.representations) {
            list.push_back(representation.type);
        }
    }
    return types;
}

std::optional<std::string> MemoryPasteboard::string(const std::string& type) {
    if (const auto bytes = data(type)) {
        return std::string(bytes->begin(), bytes->end());
    }
    return std::nullopt;
}

std::optional<std::vector<std::uint8_t>> MemoryPasteboard::data(const std::string& type) {
    for (const PasteboardItem& item : items_) {
        if (const auto* bytes = item.find(type)) {
            return *bytes;
        }
    }
    return std::nullopt;
}

std::vector<std::string> MemoryPasteboard::filePaths() {
    std::vector<std::string> paths;
    for (const PasteboardItem& item : items_) {
        if (const auto* bytes = item.find(pasteboard_type::fileURL)) {
            if (auto path = file_url::toPath(std::string(bytes->begin(), bytes->end()))) {
                paths.push_back(std::move(*path));
            }
        }
    }
    return paths;
}

std::int64_t MemoryPasteboard::clearContents() {
    items_.clear();
    return ++changeCount_;
}

bool MemoryPasteboard::setString(const std::string& string, const std::string& type) {
    return setData(std::vector<std::uint8_t>(string.begin(), string.end()), type);
}

bool MemoryPasteboard::setData(const std::vector<std::uint8_t>& bytes, const std::string& type) {
    if (items_.empty()) {
        items_.emplace_back();
    }
    auto& representations = items_.front().representations;
    for (auto& representation : representations) {
        if (representation.type == type) {
            representation.bytes = bytes;
            return true;
        }
    }
    representations.push_back({type, bytes});
    return true;
}

bool MemoryPasteboard::writeFilePaths(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        const std::string url = file_url::fromPath(path);
        items_.push_back(
            {{{pasteboard_type::fileURL, std::vector<std::uint8_t>(url.begin(), url.end())}}});
    }
    return true;
}

bool MemoryPasteboard::writeItems(const std::vector<PasteboardItem>& items) {
    items_.insert(items_.end(), items.begin(), items.end());
    return true;
}

}  // namespace quorvane
