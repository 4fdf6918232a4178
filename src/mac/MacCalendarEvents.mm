#include "mac/MacCalendarEvents.hpp"

#include <utility>

#include "mac/MacFrameworks.h"
#include "mac/MacObservation.hpp"
#include "mac/MacStrings.hpp"
#include "mac/MacViews.hpp"

// unconfirmed: check on a Mac first. EventKit is not in the shared fact sheet; written from
// Apple's reference:
// - +[EKEventStore authorizationStatusForEntityType:EKEntityTypeEvent] -> EKAuthorizationStatus
//   (notDetermined 0, restricted 1, denied 2, fullAccess 3, writeOnly 4; macOS 14 renamed
//   "authorized" to fullAccess with the same value).
// - -requestFullAccessToEventsWithCompletion: (macOS 14) prompts once and calls back "on an
//   arbitrary queue" with (BOOL granted, NSError *error). It needs
//   NSCalendarsFullAccessUsageDescription in Info.plist, or the app is terminated.
// - -predicateForEventsWithStartDate:endDate:calendars: (nil: every calendar) and
//   -eventsMatchingPredicate: answer synchronously; the predicate covers events that overlap.
// - EKEventStoreChangedNotification, object the store.

namespace quorvane {

struct MacEventStore {
    EKEventStore* store = [[EKEventStore alloc] init];
};

MacCalendarEvents::MacCalendarEvents() : store_(std::make_unique<MacEventStore>()) {}

MacCalendarEvents::~MacCalendarEvents() = default;

CalendarEvents::Access MacCalendarEvents::authorizationStatus() {
    return static_cast<Access>([EKEventStore authorizationStatusForEntityType:EKEntityTypeEvent]);
}

void MacCalendarEvents::requestFullAccess(
    std::function<void(bool granted, std::string error)> done) {
    auto callback = std::make_shared<std::function<void(bool, std::string)>>(std::move(done));
    [store_->store requestFullAccessToEventsWithCompletion:^(BOOL granted, NSError* error) {
      const bool wasGranted = granted;
      NSString* reason = error.localizedDescription;
      runSoon(^{
        (*callback)(wasGranted, utf8String(reason));
      });
    }];
}

std::vector<CalendarEvents::Event> MacCalendarEvents::events(double start, double end) {
    std::vector<Event> result;
    EKEventStore* store = store_->store;
    NSPredicate* predicate =
        [store predicateForEventsWithStartDate:[NSDate dateWithTimeIntervalSinceReferenceDate:start]
                                       endDate:[NSDate dateWithTimeIntervalSinceReferenceDate:end]
                                     calendars:nil];
    for (EKEvent* event in [store eventsMatchingPredicate:predicate]) {
        result.push_back({utf8String(event.title), event.startDate.timeIntervalSinceReferenceDate,
                          event.endDate.timeIntervalSinceReferenceDate, event.allDay != NO,
                          utf8String(event.calendar.title)});
    }
    return result;
}

Subscription MacCalendarEvents::observeChanges(std::function<void()> handler) {
    return observeOnMainQueue([NSNotificationCenter defaultCenter], EKEventStoreChangedNotification,
                              store_ -> store,
                              [handler = std::move(handler)](NSNotification*) { handler(); });
}

}  // namespace quorvane
