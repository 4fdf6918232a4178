#pragma once

#include <optional>

namespace quorvane {

// Whether the battery should charge, with a band below the limit so that charging does not
// switch on and off around it: charging stops at the limit and starts again only once the
// charge has fallen below the limit minus the band.
class ChargeLimitPolicy {
public:
    static constexpr int kDefaultLimit = 80;
    static constexpr int kDefaultBand = 5;
    static constexpr int kLowestLimit = 50;
    static constexpr int kHighestLimit = 100;

    explicit ChargeLimitPolicy(int limit = kDefaultLimit, int band = kDefaultBand);

    int limit() const { return limit_; }
    int band() const { return band_; }

    // The charge in percent now, or nothing when it cannot be read; answers whether charging
    // should be allowed. Unknown charge, or a limit of 100, always allows charging: the safe
    // state is the system's own.
    bool shouldCharge(std::optional<int> percent);

private:
    int limit_;
    int band_;
    bool charging_ = true;
};

}  // namespace quorvane
