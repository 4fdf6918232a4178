#pragma once

#include <cstddef>

namespace quorvane {

// Bounds on what the JSON reader accepts, so that a damaged or hostile file costs an error
// rather than the process. No file Quorvane writes comes near either default.
struct JsonLimits {
    // Arrays and objects nested inside one another; 0 allows only a single scalar.
    std::size_t maxDepth = 64;
    std::size_t maxBytes = std::size_t{64} << 20;
};

}  // namespace quorvane
