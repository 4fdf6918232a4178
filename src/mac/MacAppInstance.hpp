#pragma once

#include "platform/AppInstance.hpp"

namespace quorvane {

// NSApplication's termination, a second instance of the bundle through NSWorkspace, and the
// process a restart replaces.
class MacAppInstance final : public AppInstance {
public:
    void terminate() override;
    Subscription launchNewInstance(std::function<void(const std::string& error)> done) override;
    std::optional<int> predecessor() const override;
    bool isRunning(int processID) const override;
};

}  // namespace quorvane
