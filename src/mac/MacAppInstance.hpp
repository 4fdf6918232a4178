#pragma once

#include "platform/AppInstance.hpp"

namespace quorvane {

// NSApplication's termination, and a second instance of the bundle through NSWorkspace.
class MacAppInstance final : public AppInstance {
public:
    void terminate() override;
    Subscription launchNewInstance(std::function<void(const std::string& error)> done) override;
};

}  // namespace quorvane
