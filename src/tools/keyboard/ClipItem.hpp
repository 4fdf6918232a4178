#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/Uuid.hpp"

namespace quorvane {

// One remembered copy. The field names are also the keys of the history file.
struct ClipItem {
    enum class Kind { text, image, files };

    Uuid id;
    Kind kind = Kind::text;
    std::optional<std::string> text;
    // The other representations of a text copy (styled text), by pasteboard type.
    std::optional<std::map<std::string, std::vector<std::uint8_t>>> rich;
    std::optional<std::vector<std::string>> filePaths;
    std::optional<std::string> imageType;
    // Lower-case hexadecimal SHA-256 of the image bytes.
    std::optional<std::string> imageHash;
    // Bundle identifier of the app in front when the copy was seen.
    std::optional<std::string> app;
    // Seconds since 2001-01-01 00:00:00 UTC: when the copy was (last) seen.
    double date = 0;

    // Whether the two hold the same copy, whatever their ids and dates.
    bool sameContent(const ClipItem& other) const;

    friend bool operator==(const ClipItem&, const ClipItem&) = default;
};

const char* rawValue(ClipItem::Kind kind);

}  // namespace quorvane
