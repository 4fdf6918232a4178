#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Subscription.hpp"

namespace quorvane {

// The user's calendar events (EventKit's event store), read only. Dates are seconds since
// 2001-01-01 00:00:00 UTC.
class CalendarEvents {
public:
    // EKAuthorizationStatus for events, with its raw numbers.
    enum class Access {
        notDetermined = 0,
        restricted = 1,
        denied = 2,
        fullAccess = 3,
        writeOnly = 4
    };
    struct Event {
        std::string title;
        double start = 0;
        double end = 0;
        bool allDay = false;
        std::string calendar;
        friend bool operator==(const Event&, const Event&) = default;
    };

    virtual ~CalendarEvents() = default;

    virtual Access authorizationStatus() = 0;
    // Asks the user once; later calls answer at once with the stored choice. `done` runs on
    // the main thread with whether full access was granted and the system's error text.
    virtual void requestFullAccess(std::function<void(bool granted, std::string error)> done) = 0;
    // The events of every calendar that overlap the range, in no particular order.
    virtual std::vector<Event> events(double start, double end) = 0;
    // The store changed (an event added, a calendar synced); on the main thread.
    [[nodiscard]] virtual Subscription observeChanges(std::function<void()> handler) = 0;
};

}  // namespace quorvane
