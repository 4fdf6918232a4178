#pragma once

#include "platform/EventMonitors.hpp"

namespace quorvane {

// NSEvent's global and local monitors.
class MacEventMonitors final : public EventMonitors {
public:
    [[nodiscard]] Subscription addGlobal(std::uint64_t mask, GlobalHandler handler) override;
    [[nodiscard]] Subscription addLocal(std::uint64_t mask, LocalHandler handler) override;
};

}  // namespace quorvane
