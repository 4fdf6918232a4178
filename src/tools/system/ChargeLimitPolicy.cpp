#include "tools/system/ChargeLimitPolicy.hpp"

#include <algorithm>

namespace quorvane {

ChargeLimitPolicy::ChargeLimitPolicy(int limit, int band)
    : limit_(std::clamp(limit, kLowestLimit, kHighestLimit)), band_(std::clamp(band, 1, 20)) {}

bool ChargeLimitPolicy::shouldCharge(std::optional<int> percent) {
    if (!percent || limit_ >= kHighestLimit) {
        charging_ = true;
    } else if (*percent >= limit_) {
        charging_ = false;
    } else if (*percent < limit_ - band_) {
        charging_ = true;
    }
    // Inside the band the last decision stands.
    return charging_;
}

}  // namespace quorvane
