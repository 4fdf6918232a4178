#pragma once

#include <stdexcept>

namespace quorvane {

// A foreign preference that could not be saved, or a backup that cannot be trusted. The text is
// a sentence for the tool's lastError.
struct SystemPreferenceError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace quorvane
