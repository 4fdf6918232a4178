#pragma once
// Core Graphics as the macOS layer uses it: geometry, Quartz events and taps, event sources,
// the window list and the screen-capture check. Written from Apple's documentation
// (developer.apple.com/documentation/coregraphics/<name>); values of the event constants are
// the documented ones. Looked up for this check: CGEventTapCreate, CGEventTapCallBack,
// CGEventCreateScrollWheelEvent2, CGWindowListCopyWindowInfo.
#include <CoreFoundation/CoreFoundation.h>
#include <QVGeometry.h>
#include <mach/mach.h>

#ifdef __cplusplus
extern "C" {
#endif

#pragma clang arc_cf_code_audited begin

static inline CGPoint CGPointMake(CGFloat x, CGFloat y) {
    CGPoint point;
    point.x = x;
    point.y = y;
    return point;
}
static inline CGSize CGSizeMake(CGFloat width, CGFloat height) {
    CGSize size;
    size.width = width;
    size.height = height;
    return size;
}
static inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    CGRect rect;
    rect.origin.x = x;
    rect.origin.y = y;
    rect.size.width = width;
    rect.size.height = height;
    return rect;
}
extern const CGPoint CGPointZero;
extern const CGRect CGRectZero;
Boolean CGRectContainsPoint(CGRect rect, CGPoint point);

typedef struct __attribute__((objc_bridge(id))) __CGEvent* CGEventRef;
typedef struct __attribute__((objc_bridge(id))) __CGEventSource* CGEventSourceRef;
typedef struct __CGEventTapProxy* CGEventTapProxy;
typedef struct __attribute__((objc_bridge(id))) CGColor* CGColorRef;
typedef struct __attribute__((objc_bridge(id))) CGImage* CGImageRef;
typedef uint32_t CGDirectDisplayID;
typedef uint32_t CGWindowID;
typedef uint16_t CGKeyCode;
typedef uint64_t CGEventMask;
typedef uint64_t CGEventTimestamp;
typedef int32_t CGWindowLevel;

typedef QV_CF_ENUM(uint32_t, CGEventType){
    kCGEventNull = 0,
    kCGEventLeftMouseDown = 1,
    kCGEventLeftMouseUp = 2,
    kCGEventRightMouseDown = 3,
    kCGEventRightMouseUp = 4,
    kCGEventMouseMoved = 5,
    kCGEventLeftMouseDragged = 6,
    kCGEventRightMouseDragged = 7,
    kCGEventKeyDown = 10,
    kCGEventKeyUp = 11,
    kCGEventFlagsChanged = 12,
    kCGEventScrollWheel = 22,
    kCGEventTabletPointer = 23,
    kCGEventTabletProximity = 24,
    kCGEventOtherMouseDown = 25,
    kCGEventOtherMouseUp = 26,
    kCGEventOtherMouseDragged = 27,
    kCGEventTapDisabledByTimeout = 0xFFFFFFFE,
    kCGEventTapDisabledByUserInput = 0xFFFFFFFF,
};
#define CGEventMaskBit(eventType) ((CGEventMask)1 << (eventType))
#define kCGEventMaskForAllEvents (~(CGEventMask)0)
#define kCGAnyInputEventType ((CGEventType)(~0))

typedef QV_CF_ENUM(uint32_t, CGEventField){
    kCGMouseEventNumber = 0,
    kCGMouseEventClickState = 1,
    kCGMouseEventPressure = 2,
    kCGMouseEventButtonNumber = 3,
    kCGMouseEventDeltaX = 4,
    kCGMouseEventDeltaY = 5,
    kCGMouseEventInstantMouser = 6,
    kCGMouseEventSubtype = 7,
    kCGKeyboardEventAutorepeat = 8,
    kCGKeyboardEventKeycode = 9,
    kCGKeyboardEventKeyboardType = 10,
    kCGScrollWheelEventDeltaAxis1 = 11,
    kCGScrollWheelEventDeltaAxis2 = 12,
    kCGScrollWheelEventDeltaAxis3 = 13,
    kCGScrollWheelEventFixedPtDeltaAxis1 = 93,
    kCGScrollWheelEventFixedPtDeltaAxis2 = 94,
    kCGScrollWheelEventFixedPtDeltaAxis3 = 95,
    kCGScrollWheelEventPointDeltaAxis1 = 96,
    kCGScrollWheelEventPointDeltaAxis2 = 97,
    kCGScrollWheelEventPointDeltaAxis3 = 98,
    kCGScrollWheelEventScrollPhase = 99,
    kCGScrollWheelEventScrollCount = 100,
    kCGScrollWheelEventMomentumPhase = 123,
    kCGScrollWheelEventInstantMouser = 14,
    kCGScrollWheelEventIsContinuous = 88,
    kCGEventTargetProcessSerialNumber = 39,
    kCGEventTargetUnixProcessID = 40,
    kCGEventSourceUnixProcessID = 41,
    kCGEventSourceUserData = 42,
    kCGEventSourceUserID = 43,
    kCGEventSourceGroupID = 44,
    kCGEventSourceStateID = 45,
};

typedef QV_CF_OPTIONS(uint64_t, CGEventFlags){
    kCGEventFlagMaskAlphaShift = 0x00010000,   kCGEventFlagMaskShift = 0x00020000,
    kCGEventFlagMaskControl = 0x00040000,      kCGEventFlagMaskAlternate = 0x00080000,
    kCGEventFlagMaskCommand = 0x00100000,      kCGEventFlagMaskHelp = 0x00400000,
    kCGEventFlagMaskSecondaryFn = 0x00800000,  kCGEventFlagMaskNumericPad = 0x00200000,
    kCGEventFlagMaskNonCoalesced = 0x00000100,
};

typedef QV_CF_ENUM(uint32_t, CGEventTapLocation){
    kCGHIDEventTap = 0,
    kCGSessionEventTap = 1,
    kCGAnnotatedSessionEventTap = 2,
};
typedef QV_CF_ENUM(uint32_t, CGEventTapPlacement){
    kCGHeadInsertEventTap = 0,
    kCGTailAppendEventTap = 1,
};
typedef QV_CF_ENUM(uint32_t, CGEventTapOptions){
    kCGEventTapOptionDefault = 0x00000000,
    kCGEventTapOptionListenOnly = 0x00000001,
};
typedef QV_CF_ENUM(uint32_t, CGMouseButton){
    kCGMouseButtonLeft = 0,
    kCGMouseButtonRight = 1,
    kCGMouseButtonCenter = 2,
};
typedef QV_CF_ENUM(uint32_t, CGScrollEventUnit){
    kCGScrollEventUnitPixel = 0,
    kCGScrollEventUnitLine = 1,
};
typedef QV_CF_ENUM(int32_t, CGEventSourceStateID){
    kCGEventSourceStatePrivate = -1,
    kCGEventSourceStateCombinedSessionState = 0,
    kCGEventSourceStateHIDSystemState = 1,
};
typedef QV_CF_ENUM(uint32_t, CGScrollPhase){
    kCGScrollPhaseBegan = 1,     kCGScrollPhaseChanged = 2,    kCGScrollPhaseEnded = 4,
    kCGScrollPhaseCancelled = 8, kCGScrollPhaseMayBegin = 128,
};
typedef QV_CF_ENUM(uint32_t, CGMomentumScrollPhase){
    kCGMomentumScrollPhaseNone = 0,
    kCGMomentumScrollPhaseBegin = 1,
    kCGMomentumScrollPhaseContinue = 2,
    kCGMomentumScrollPhaseEnd = 3,
};

typedef CGEventRef _Nullable (*CGEventTapCallBack)(CGEventTapProxy proxy, CGEventType type,
                                                   CGEventRef event, void* _Nullable userInfo);
CFMachPortRef _Nullable CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place,
                                         CGEventTapOptions options, CGEventMask eventsOfInterest,
                                         CGEventTapCallBack callback, void* _Nullable userInfo);
void CGEventTapEnable(CFMachPortRef tap, bool enable);
bool CGEventTapIsEnabled(CFMachPortRef tap);
void CGEventTapPostEvent(CGEventTapProxy _Nullable proxy, CGEventRef _Nullable event);

CGEventRef _Nullable CGEventCreate(CGEventSourceRef _Nullable source);
CGEventRef _Nullable CGEventCreateCopy(CGEventRef _Nullable event);
CGEventRef _Nullable CGEventCreateKeyboardEvent(CGEventSourceRef _Nullable source,
                                                CGKeyCode virtualKey, bool keyDown);
CGEventRef _Nullable CGEventCreateMouseEvent(CGEventSourceRef _Nullable source,
                                             CGEventType mouseType, CGPoint mouseCursorPosition,
                                             CGMouseButton mouseButton);
CGEventRef _Nullable CGEventCreateScrollWheelEvent2(CGEventSourceRef _Nullable source,
                                                    CGScrollEventUnit units, uint32_t wheelCount,
                                                    int32_t wheel1, int32_t wheel2, int32_t wheel3);
CGEventType CGEventGetType(CGEventRef _Nullable event);
void CGEventSetType(CGEventRef _Nullable event, CGEventType type);
CGPoint CGEventGetLocation(CGEventRef _Nullable event);
CGPoint CGEventGetUnflippedLocation(CGEventRef _Nullable event);
void CGEventSetLocation(CGEventRef _Nullable event, CGPoint location);
CGEventFlags CGEventGetFlags(CGEventRef _Nullable event);
void CGEventSetFlags(CGEventRef _Nullable event, CGEventFlags flags);
CGEventTimestamp CGEventGetTimestamp(CGEventRef _Nullable event);
int64_t CGEventGetIntegerValueField(CGEventRef _Nullable event, CGEventField field);
void CGEventSetIntegerValueField(CGEventRef _Nullable event, CGEventField field, int64_t value);
double CGEventGetDoubleValueField(CGEventRef _Nullable event, CGEventField field);
void CGEventSetDoubleValueField(CGEventRef _Nullable event, CGEventField field, double value);
void CGEventKeyboardGetUnicodeString(CGEventRef _Nullable event, UniCharCount maxStringLength,
                                     UniCharCount* _Nullable actualStringLength,
                                     UniChar* _Nullable unicodeString);
void CGEventKeyboardSetUnicodeString(CGEventRef _Nullable event, UniCharCount stringLength,
                                     const UniChar* _Nullable unicodeString);
void CGEventPost(CGEventTapLocation tap, CGEventRef _Nullable event);
void CGEventPostToPid(pid_t pid, CGEventRef _Nullable event);
CGEventSourceRef _Nullable CGEventSourceCreate(CGEventSourceStateID stateID);
CFTimeInterval CGEventSourceSecondsSinceLastEventType(CGEventSourceStateID stateID,
                                                      CGEventType eventType);
bool CGPreflightListenEventAccess(void);
bool CGRequestListenEventAccess(void);
bool CGPreflightPostEventAccess(void);
bool CGRequestPostEventAccess(void);

// The window list.
typedef QV_CF_OPTIONS(uint32_t, CGWindowListOption){
    kCGWindowListOptionAll = 0,
    kCGWindowListOptionOnScreenOnly = (1 << 0),
    kCGWindowListOptionOnScreenAboveWindow = (1 << 1),
    kCGWindowListOptionOnScreenBelowWindow = (1 << 2),
    kCGWindowListOptionIncludingWindow = (1 << 3),
    kCGWindowListExcludeDesktopElements = (1 << 4),
};
#define kCGNullWindowID ((CGWindowID)0)
CFArrayRef _Nullable CGWindowListCopyWindowInfo(CGWindowListOption option,
                                                CGWindowID relativeToWindow);
extern const CFStringRef kCGWindowNumber;
extern const CFStringRef kCGWindowLayer;
extern const CFStringRef kCGWindowBounds;
extern const CFStringRef kCGWindowOwnerPID;
extern const CFStringRef kCGWindowOwnerName;
extern const CFStringRef kCGWindowName;
extern const CFStringRef kCGWindowIsOnscreen;
extern const CFStringRef kCGWindowAlpha;
bool CGRectMakeWithDictionaryRepresentation(CFDictionaryRef _Nullable dict, CGRect* _Nullable rect);

bool CGPreflightScreenCaptureAccess(void);
bool CGRequestScreenCaptureAccess(void);

CGDirectDisplayID CGMainDisplayID(void);
CGRect CGDisplayBounds(CGDirectDisplayID display);
// ColorSync's, reached through ApplicationServices on a Mac; looked up:
// CGDisplayCreateUUIDFromDisplayID(uint32_t) -> CFUUIDRef, Create rule (macOS 10.13+).
CFUUIDRef _Nullable CGDisplayCreateUUIDFromDisplayID(uint32_t displayID);
// Quartz Display Services' built-in test and gamma tables; looked up: CGDisplayIsBuiltin,
// CGDisplayGammaTableCapacity, CGGetDisplayTransferByTable, CGSetDisplayTransferByTable,
// CGDisplayRestoreColorSyncSettings, CGGammaValue (float), CGError (int32_t).
typedef int32_t CGError;
typedef float CGGammaValue;
boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display);
uint32_t CGDisplayGammaTableCapacity(CGDirectDisplayID display);
CGError CGGetDisplayTransferByTable(CGDirectDisplayID display, uint32_t capacity,
                                    CGGammaValue* _Nullable redTable,
                                    CGGammaValue* _Nullable greenTable,
                                    CGGammaValue* _Nullable blueTable,
                                    uint32_t* _Nullable sampleCount);
CGError CGSetDisplayTransferByTable(CGDirectDisplayID display, uint32_t tableSize,
                                    const CGGammaValue* _Nullable redTable,
                                    const CGGammaValue* _Nullable greenTable,
                                    const CGGammaValue* _Nullable blueTable);
void CGDisplayRestoreColorSyncSettings(void);

void CGColorRelease(CGColorRef _Nullable color);
void CGImageRelease(CGImageRef _Nullable image);
size_t CGImageGetWidth(CGImageRef _Nullable image);
size_t CGImageGetHeight(CGImageRef _Nullable image);

#pragma clang arc_cf_code_audited end

#ifdef __cplusplus
}
#endif
