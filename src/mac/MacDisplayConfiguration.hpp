#pragma once

#include "platform/DisplayConfiguration.hpp"

namespace quorvane {

// NSScreen's displays, named by their ColorSync UUIDs, and AppKit's word that they changed.
class MacDisplayConfiguration final : public DisplayConfiguration {
public:
    std::vector<std::string> displayIDs() override;
    [[nodiscard]] Subscription observeReconfiguration(std::function<void()> handler) override;
};

}  // namespace quorvane
