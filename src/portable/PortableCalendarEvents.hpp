#pragma once

#include "platform/CalendarEvents.hpp"

namespace quorvane {

// The command line has no calendar store: access is restricted and there are no events.
class PortableCalendarEvents : public CalendarEvents {
public:
    Access authorizationStatus() override { return Access::restricted; }
    void requestFullAccess(std::function<void(bool, std::string)> done) override {
        done(false, "There are no calendars here.");
    }
    std::vector<Event> events(double, double) override { return {}; }
    Subscription observeChanges(std::function<void()>) override { return {}; }
};

}  // namespace quorvane
