#pragma once

#include <memory>

#include "platform/DiskArbitration.hpp"

namespace quorvane {

// Disk Arbitration through one session scheduled on the main run loop.
class MacDiskArbitration final : public DiskArbitration {
public:
    MacDiskArbitration();
    ~MacDiskArbitration() override;
    MacDiskArbitration(const MacDiskArbitration&) = delete;
    MacDiskArbitration& operator=(const MacDiskArbitration&) = delete;

    std::vector<DiskDescription> mountedVolumes() override;
    std::optional<DiskDescription> describe(const std::string& bsdName) override;
    Subscription unmount(const std::string& bsdName, Completion done) override;
    Subscription mount(const std::string& bsdName, Completion done) override;

private:
    struct Session;
    std::unique_ptr<Session> session_;
};

}  // namespace quorvane
