#pragma once

#include "platform/DiskArbitration.hpp"

namespace quorvane {

// No Disk Arbitration elsewhere: no volumes, and nothing to mount or unmount.
class PortableDiskArbitration : public DiskArbitration {
public:
    std::vector<DiskDescription> mountedVolumes() override { return {}; }
    std::optional<DiskDescription> describe(const std::string&) override { return std::nullopt; }
    Subscription unmount(const std::string&, Completion) override { return {}; }
    Subscription mount(const std::string&, Completion) override { return {}; }
};

}  // namespace quorvane
