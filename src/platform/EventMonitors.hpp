#pragma once

#include <cstdint>
#include <functional>

#include "base/Subscription.hpp"
#include "platform/Event.hpp"

namespace quorvane {

// AppKit's event monitors. A global monitor sees copies of events sent to other applications;
// a local one sees Quorvane's own events before they are dispatched. Ending the subscription
// removes the monitor. An empty subscription means the system refused.
class EventMonitors {
public:
    using GlobalHandler = std::function<void(const Event& event)>;
    // False stops the event: it is never dispatched.
    using LocalHandler = std::function<bool(const Event& event)>;

    virtual ~EventMonitors() = default;

    [[nodiscard]] virtual Subscription addGlobal(std::uint64_t mask, GlobalHandler handler) = 0;
    [[nodiscard]] virtual Subscription addLocal(std::uint64_t mask, LocalHandler handler) = 0;
};

}  // namespace quorvane
