#include "mac/MacPorts.hpp"

#include <cassert>
#include <memory>

#include "mac/CancellableAction.hpp"
#include "mac/MacEvent.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacMonitorSubscription.hpp"

namespace quorvane {

namespace {

// NSEvent's global and local monitors.
class MacEventMonitors final : public EventMonitors {
public:
    [[nodiscard]] Subscription addGlobal(std::uint64_t mask, GlobalHandler handler) override {
        using Global = CancellableAction<const Event&>;
        auto monitor = std::make_shared<Global>(std::move(handler));
        id token = [NSEvent
            addGlobalMonitorForEventsMatchingMask:static_cast<NSEventMask>(mask)
                                          handler:^(NSEvent* event) {
                                            assert([NSThread isMainThread]);
                                            Global::run(monitor,
                                                        MacEvent::borrow(event.CGEvent, event));
                                          }];
        return monitorSubscription(monitor, token);
    }

    [[nodiscard]] Subscription addLocal(std::uint64_t mask, LocalHandler handler) override {
        // The action tells through its second argument whether the event goes on.
        using Local = CancellableAction<const Event&, bool&>;
        auto monitor = std::make_shared<Local>(
            [handler = std::move(handler)](const Event& event, bool& passes) {
                passes = handler(event);
            });
        id token = [NSEvent
            addLocalMonitorForEventsMatchingMask:static_cast<NSEventMask>(mask)
                                         handler:^NSEvent*(NSEvent* event) {
                                           assert([NSThread isMainThread]);
                                           bool passes = true;
                                           Local::run(monitor,
                                                      MacEvent::borrow(event.CGEvent, event),
                                                      passes);
                                           // nil stops the event: it is never dispatched.
                                           return passes ? event : nil;
                                         }];
        return monitorSubscription(monitor, token);
    }
};

}  // namespace

std::unique_ptr<EventMonitors> makeMacEventMonitors() {
    return std::make_unique<MacEventMonitors>();
}

}  // namespace quorvane
