#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Subscription.hpp"
#include "platform/DiskDescription.hpp"

namespace quorvane {

// Disk Arbitration: the volumes mounted now, one disk's description, and asynchronous unmount
// and mount. A completion gets 0, or the dissenter's status (DADissenterGetStatus) when the
// system or another program refused.
class DiskArbitration {
public:
    using Completion = std::function<void(int status)>;
    virtual ~DiskArbitration() = default;
    // Every mounted volume that Disk Arbitration knows (network shares included).
    virtual std::vector<DiskDescription> mountedVolumes() = 0;
    // The disk with this BSD name, mounted or not; nothing when it is no longer attached.
    virtual std::optional<DiskDescription> describe(const std::string& bsdName) = 0;
    // Cancelling the subscription drops the completion; the request itself still runs.
    [[nodiscard]] virtual Subscription unmount(const std::string& bsdName, Completion done) = 0;
    [[nodiscard]] virtual Subscription mount(const std::string& bsdName, Completion done) = 0;
};

}  // namespace quorvane
