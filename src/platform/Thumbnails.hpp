#pragma once

#include <optional>
#include <string>

#include "platform/Thumbnail.hpp"

namespace quorvane {

// Makes thumbnails of image files without decoding the full image into memory.
class Thumbnails {
public:
    virtual ~Thumbnails() = default;

    // A thumbnail whose longer side is at most `maxPixelSize`, made from the image even when
    // the file carries none of its own; nothing when the file is missing or not an image.
    virtual std::optional<Thumbnail> make(const std::string& path, int maxPixelSize) = 0;
};

}  // namespace quorvane
