#pragma once

#include "platform/Thumbnails.hpp"

namespace quorvane {

// No image decoder outside macOS; rows show their symbol instead.
class PortableThumbnails : public Thumbnails {
public:
    std::optional<Thumbnail> make(const std::string& /*path*/, int /*maxPixelSize*/) override {
        return std::nullopt;
    }
};

}  // namespace quorvane
