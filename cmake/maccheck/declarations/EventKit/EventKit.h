#pragma once
// EventKit as the macOS layer uses it: the event store's authorisation, the full-access
// request of macOS 14, fetching events by date and the store's change notification. Written
// from Apple's documentation (developer.apple.com/documentation/eventkit/<name>); looked up:
// EKEventStore, authorizationStatus(for:), requestFullAccessToEvents(completion:),
// predicateForEvents(withStart:end:calendars:), events(matching:), EKEvent, EKCalendar,
// EKAuthorizationStatus, EKEntityType, EKEventStoreChanged.
#ifdef __OBJC__
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, EKAuthorizationStatus) {
    EKAuthorizationStatusNotDetermined = 0,
    EKAuthorizationStatusRestricted = 1,
    EKAuthorizationStatusDenied = 2,
    EKAuthorizationStatusFullAccess = 3,
    EKAuthorizationStatusWriteOnly = 4,
};
typedef NS_ENUM(NSUInteger, EKEntityType) {
    EKEntityTypeEvent = 0,
    EKEntityTypeReminder = 1,
};
typedef void (^EKEventStoreRequestAccessCompletionHandler)(BOOL granted, NSError* _Nullable error);

@interface EKCalendar : NSObject
@property(null_unspecified, copy) NSString* title;
@end

@interface EKCalendarItem : NSObject
@property(null_unspecified, copy) NSString* title;
@property(null_unspecified, strong) EKCalendar* calendar;
@end

@interface EKEvent : EKCalendarItem
@property(null_unspecified, copy) NSDate* startDate;
@property(null_unspecified, copy) NSDate* endDate;
@property(getter=isAllDay) BOOL allDay;
@end

@interface EKEventStore : NSObject
+ (EKAuthorizationStatus)authorizationStatusForEntityType:(EKEntityType)entityType;
- (instancetype)init;
- (void)requestFullAccessToEventsWithCompletion:
    (EKEventStoreRequestAccessCompletionHandler)completion;
- (NSPredicate*)predicateForEventsWithStartDate:(NSDate*)startDate
                                        endDate:(NSDate*)endDate
                                      calendars:(nullable NSArray<EKCalendar*>*)calendars;
- (NSArray<EKEvent*>*)eventsMatchingPredicate:(NSPredicate*)predicate;
@end

extern NSString* const EKEventStoreChangedNotification;

NS_ASSUME_NONNULL_END
#endif
