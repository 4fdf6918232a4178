#include "mac/MacPorts.hpp"

#include <memory>
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

namespace {

// EventKit's event store, kept for the app's lifetime as Apple advises (objects fetched from
// one store cannot be used with another). Main thread only.
class MacCalendarEvents final : public CalendarEvents {
public:
    CalendarEvents::Access authorizationStatus() override {
        return static_cast<Access>(
            [EKEventStore authorizationStatusForEntityType:EKEntityTypeEvent]);
    }

    void requestFullAccess(std::function<void(bool granted, std::string error)> done) override {
        auto callback = std::make_shared<std::function<void(bool, std::string)>>(std::move(done));
        [store_ requestFullAccessToEventsWithCompletion:^(BOOL granted, NSError* error) {
          const bool wasGranted = granted;
          NSString* reason = error.localizedDescription;
          runSoon(^{
            (*callback)(wasGranted, utf8String(reason));
          });
        }];
    }

    std::vector<CalendarEvents::Event> events(double start, double end) override {
        std::vector<Event> result;
        EKEventStore* store = store_;
        NSPredicate* predicate = [store
            predicateForEventsWithStartDate:[NSDate dateWithTimeIntervalSinceReferenceDate:start]
                                    endDate:[NSDate dateWithTimeIntervalSinceReferenceDate:end]
                                  calendars:nil];
        for (EKEvent* event in [store eventsMatchingPredicate:predicate]) {
            result.push_back({utf8String(event.title),
                              event.startDate.timeIntervalSinceReferenceDate,
                              event.endDate.timeIntervalSinceReferenceDate, event.allDay != NO,
                              utf8String(event.calendar.title)});
        }
        return result;
    }

    Subscription observeChanges(std::function<void()> handler) override {
        return observeOnMainQueue([NSNotificationCenter defaultCenter],
                                  EKEventStoreChangedNotification, store_,
                                  [handler = std::move(handler)](NSNotification*) { handler(); });
    }

private:
    EKEventStore* store_ = [[EKEventStore alloc] init];
};

}  // namespace

std::unique_ptr<CalendarEvents> makeMacCalendarEvents() {
    return std::make_unique<MacCalendarEvents>();
}

}  // namespace quorvane
