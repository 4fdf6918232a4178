#pragma once

#include <stdexcept>

namespace quorvane {

// A WAV file that cannot be read or written, with a one-line reason for the user.
struct WavError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace quorvane
