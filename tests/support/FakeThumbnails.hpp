#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Thumbnails.hpp"

namespace quorvane {

// Any file that exists is an image of a fixed size; every request is recorded.
struct FakeThumbnails : Thumbnails {
    std::vector<std::string> requests;

    std::optional<Thumbnail> make(const std::string& path, int maxPixelSize) override {
        requests.push_back(path);
        if (!std::filesystem::exists(path)) {
            return std::nullopt;
        }
        return Thumbnail{maxPixelSize, maxPixelSize / 2, std::make_shared<int>(0)};
    }
};

}  // namespace quorvane
