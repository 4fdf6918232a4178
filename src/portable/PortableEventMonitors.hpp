#pragma once

#include "platform/EventMonitors.hpp"

namespace quorvane {

// No window system, no events to monitor: every monitor is refused.
class PortableEventMonitors : public EventMonitors {
public:
    Subscription addGlobal(std::uint64_t, GlobalHandler) override { return {}; }
    Subscription addLocal(std::uint64_t, LocalHandler) override { return {}; }
};

}  // namespace quorvane
