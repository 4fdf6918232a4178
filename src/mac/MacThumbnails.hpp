#pragma once

#include "platform/Thumbnails.hpp"

namespace quorvane {

// Thumbnails through ImageIO.
class MacThumbnails final : public Thumbnails {
public:
    std::optional<Thumbnail> make(const std::string& path, int maxPixelSize) override;
};

}  // namespace quorvane
