#pragma once

#include <memory>

#include "platform/CalendarEvents.hpp"

namespace quorvane {

struct MacEventStore;

// EventKit's event store, kept for the app's lifetime as Apple advises (objects fetched from
// one store cannot be used with another). Main thread only.
class MacCalendarEvents final : public CalendarEvents {
public:
    MacCalendarEvents();
    ~MacCalendarEvents() override;

    Access authorizationStatus() override;
    void requestFullAccess(std::function<void(bool granted, std::string error)> done) override;
    std::vector<Event> events(double start, double end) override;
    Subscription observeChanges(std::function<void()> handler) override;

private:
    std::unique_ptr<MacEventStore> store_;
};

}  // namespace quorvane
