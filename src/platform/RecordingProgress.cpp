#include "platform/RecordingProgress.hpp"

#include <utility>

namespace quorvane {

bool RecordingProgress::begins(bool found, const std::string& failure) {
    if (stopRequested_) {
        report("stopped before it began");
        return false;
    }
    if (!found) {
        report(failure);
        return false;
    }
    return true;
}

void RecordingProgress::report(const std::string& error) {
    if (std::exchange(reported_, true) || forgotten_ || !handler_) {
        return;
    }
    handler_(error);
}

}  // namespace quorvane
