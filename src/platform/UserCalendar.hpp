#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Subscription.hpp"

namespace quorvane {

// The user's own calendar (NSCalendar's current calendar): its time zone, first day of the
// week and names. Dates are seconds since 2001-01-01 00:00:00 UTC.
class UserCalendar {
public:
    struct Components {
        int year = 0;
        int month = 0;  // 1…12
        int day = 0;    // 1…31
        friend bool operator==(const Components&, const Components&) = default;
    };

    virtual ~UserCalendar() = default;

    // 1 Sunday, 2 Monday … 7 Saturday.
    virtual int firstWeekday() = 0;
    // The local day a moment falls on.
    virtual Components components(double date) = 0;
    // The first moment of a local day.
    virtual double startOfDay(const Components& day) = 0;
    // Twelve names, January first, as they stand alone ("November").
    virtual std::vector<std::string> monthSymbols() = 0;
    // Seven short names, Sunday first ("S", "M"…).
    virtual std::vector<std::string> weekdaySymbols() = 0;
    // A new day began, or the time zone, locale or clock changed; on the main thread.
    [[nodiscard]] virtual Subscription observeChanges(std::function<void()> handler) = 0;
};

}  // namespace quorvane
