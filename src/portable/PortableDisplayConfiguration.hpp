#pragma once

#include "platform/DisplayConfiguration.hpp"

namespace quorvane {

// The command line sees no displays, and so no change of them.
class PortableDisplayConfiguration : public DisplayConfiguration {
public:
    std::vector<std::string> displayIDs() override { return {}; }
    Subscription observeReconfiguration(std::function<void()> /*handler*/) override { return {}; }
};

}  // namespace quorvane
