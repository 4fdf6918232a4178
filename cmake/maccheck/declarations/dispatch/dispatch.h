#pragma once
// Grand Central Dispatch's queues as Objective-C code under ARC sees them on a Mac: queues are
// objects ARC retains. Written from Apple's documentation
// (developer.apple.com/documentation/dispatch/<name>); looked up: dispatch_async,
// dispatch_get_main_queue, dispatch_queue_create, DISPATCH_QUEUE_SERIAL (documented as the same
// as NULL).
#include <stdint.h>

#ifdef __OBJC__
#import <Foundation/NSObject.h>
@protocol OS_dispatch_object <NSObject>
@end
@protocol OS_dispatch_queue <OS_dispatch_object>
@end
typedef NSObject<OS_dispatch_queue>* dispatch_queue_t;
@protocol OS_dispatch_queue_attr <OS_dispatch_object>
@end
typedef NSObject<OS_dispatch_queue_attr>* dispatch_queue_attr_t;
#else
typedef struct dispatch_queue_s* dispatch_queue_t;
typedef struct dispatch_queue_attr_s* dispatch_queue_attr_t;
#endif
#define DISPATCH_QUEUE_SERIAL NULL

typedef void (^dispatch_block_t)(void);
typedef uint64_t dispatch_time_t;
#define DISPATCH_TIME_NOW (0ull)
#define DISPATCH_TIME_FOREVER (~0ull)
#define NSEC_PER_SEC 1000000000ull
#define NSEC_PER_MSEC 1000000ull

#ifdef __cplusplus
extern "C" {
#endif
dispatch_queue_t dispatch_get_main_queue(void);
dispatch_queue_t dispatch_queue_create(const char* label, dispatch_queue_attr_t attr);
dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t flags);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
// Looked up: dispatch_main, which parks the main thread to serve the main queue and never
// returns.
void dispatch_main(void) __attribute__((noreturn));
#ifdef __cplusplus
}
#endif
