#include "mac/MacPorts.hpp"

#include <memory>
#include <utility>
#include <vector>

#include "mac/MacFrameworks.h"
#include "mac/MacObservation.hpp"
#include "mac/MacStrings.hpp"

// unconfirmed: check on a Mac first. None of NSCalendar, NSDateComponents, NSDateFormatter's
// symbols or the notifications below is in the shared fact sheet; written from Apple's
// reference: +[NSCalendar currentCalendar] follows the user's region settings (first weekday
// 1 = Sunday); NSCalendarDayChangedNotification is posted when the calendar day changes (on
// an arbitrary thread, hence the main-queue observation); NSSystemTimeZoneDidChangeNotification
// and NSCurrentLocaleDidChangeNotification cover a move and a change of region.

namespace quorvane {

namespace {

NSDateFormatter* currentFormatter() {
    NSDateFormatter* formatter = [[NSDateFormatter alloc] init];
    formatter.locale = [NSLocale autoupdatingCurrentLocale];
    return formatter;
}

// NSCalendar's current calendar, read anew on every call so a change of region or time zone
// counts at once; NSDateFormatter for the names. Main thread only.
class MacUserCalendar final : public UserCalendar {
public:
    int firstWeekday() override {
        NSCalendar* calendar = [NSCalendar currentCalendar];
        return static_cast<int>(calendar.firstWeekday);
    }

    UserCalendar::Components components(double date) override {
        NSCalendar* calendar = [NSCalendar currentCalendar];
        NSDateComponents* parts =
            [calendar components:NSCalendarUnitYear | NSCalendarUnitMonth | NSCalendarUnitDay
                        fromDate:[NSDate dateWithTimeIntervalSinceReferenceDate:date]];
        return {static_cast<int>(parts.year), static_cast<int>(parts.month),
                static_cast<int>(parts.day)};
    }

    double startOfDay(const Components& day) override {
        NSDateComponents* parts = [[NSDateComponents alloc] init];
        parts.year = day.year;
        parts.month = day.month;
        parts.day = day.day;
        // Hours, minutes and seconds left unset are zero: the day's first moment (in the rare
        // zones whose clocks skip midnight, the calendar moves it to the first that exists).
        NSCalendar* calendar = [NSCalendar currentCalendar];
        NSDate* start = [calendar dateFromComponents:parts];
        return start ? start.timeIntervalSinceReferenceDate : 0;
    }

    std::vector<std::string> monthSymbols() override {
        return utf8Strings(currentFormatter().standaloneMonthSymbols);
    }

    std::vector<std::string> weekdaySymbols() override {
        return utf8Strings(currentFormatter().shortStandaloneWeekdaySymbols);
    }

    Subscription observeChanges(std::function<void()> handler) override {
        auto shared = std::make_shared<std::function<void()>>(std::move(handler));
        NSNotificationCenter* center = [NSNotificationCenter defaultCenter];
        const auto call = [shared](NSNotification*) { (*shared)(); };
        auto all = std::make_shared<std::vector<Subscription>>();
        for (NSNotificationName name in @[
                 NSCalendarDayChangedNotification, NSSystemTimeZoneDidChangeNotification,
                 NSCurrentLocaleDidChangeNotification, NSSystemClockDidChangeNotification
             ]) {
            all->push_back(observeOnMainQueue(center, name, nil, call));
        }
        return Subscription([all] { all->clear(); });
    }
};

}  // namespace

std::unique_ptr<UserCalendar> makeMacUserCalendar() { return std::make_unique<MacUserCalendar>(); }

}  // namespace quorvane
