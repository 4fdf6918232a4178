#pragma once

#include <memory>

namespace quorvane {

// A small decoded image for a list row. The pixels belong to the platform (a CGImage on the
// Mac), held through `image`; portable code only passes it on and looks at its size.
struct Thumbnail {
    int width = 0;
    int height = 0;
    std::shared_ptr<const void> image;
};

}  // namespace quorvane
