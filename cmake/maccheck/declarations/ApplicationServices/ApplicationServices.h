#pragma once
// Application Services: Core Graphics plus the accessibility API (HIServices). Written from
// Apple's documentation (developer.apple.com/documentation/applicationservices/<name>);
// looked up for this check: AXObserverCreate, AXObserverCallback, AXUIElementCopyElementAtPosition.
#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>

#ifdef __cplusplus
extern "C" {
#endif

#pragma clang arc_cf_code_audited begin

typedef const struct __attribute__((objc_bridge(id))) __AXUIElement* AXUIElementRef;
typedef struct __attribute__((objc_bridge(id))) __AXObserver* AXObserverRef;
typedef const struct __attribute__((objc_bridge(id))) __AXValue* AXValueRef;

typedef QV_CF_ENUM(SInt32, AXError){
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorIllegalArgument = -25201,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorInvalidUIElementObserver = -25203,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorActionUnsupported = -25206,
    kAXErrorNotificationUnsupported = -25207,
    kAXErrorNotImplemented = -25208,
    kAXErrorNotificationAlreadyRegistered = -25209,
    kAXErrorNotificationNotRegistered = -25210,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212,
    kAXErrorParameterizedAttributeUnsupported = -25213,
    kAXErrorNotEnoughPrecision = -25214,
};
typedef QV_CF_ENUM(UInt32, AXValueType){
    kAXValueTypeCGPoint = 1, kAXValueTypeCGSize = 2,  kAXValueTypeCGRect = 3,
    kAXValueTypeCFRange = 4, kAXValueTypeAXError = 5, kAXValueTypeIllegal = 0,
};

extern CFStringRef kAXTrustedCheckOptionPrompt;
Boolean AXIsProcessTrusted(void);
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef _Nullable options);

CFTypeID AXUIElementGetTypeID(void);
AXUIElementRef AXUIElementCreateSystemWide(void);
AXUIElementRef AXUIElementCreateApplication(pid_t pid);
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef _Nullable* _Nonnull
                                      __attribute__((cf_returns_retained)) value);
AXError AXUIElementCopyParameterizedAttributeValue(AXUIElementRef element,
                                                   CFStringRef parameterizedAttribute,
                                                   CFTypeRef parameter,
                                                   CFTypeRef _Nullable* _Nonnull
                                                   __attribute__((cf_returns_retained)) result);
AXError AXUIElementCopyAttributeNames(AXUIElementRef element, CFArrayRef _Nullable* _Nonnull
                                      __attribute__((cf_returns_retained)) names);
AXError AXUIElementIsAttributeSettable(AXUIElementRef element, CFStringRef attribute,
                                       Boolean* settable);
AXError AXUIElementSetAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                     CFTypeRef value);
AXError AXUIElementPerformAction(AXUIElementRef element, CFStringRef action);
AXError AXUIElementCopyElementAtPosition(AXUIElementRef application, float x, float y,
                                         AXUIElementRef _Nullable* _Nonnull
                                         __attribute__((cf_returns_retained)) element);
AXError AXUIElementGetPid(AXUIElementRef element, pid_t* pid);
AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float timeoutInSeconds);

CFTypeID AXValueGetTypeID(void);
AXValueRef _Nullable AXValueCreate(AXValueType theType, const void* valuePtr);
AXValueType AXValueGetType(AXValueRef value);
Boolean AXValueGetValue(AXValueRef value, AXValueType theType, void* valuePtr);

typedef void (*AXObserverCallback)(AXObserverRef observer, AXUIElementRef element,
                                   CFStringRef notification, void* _Nullable refcon);
AXError AXObserverCreate(pid_t application, AXObserverCallback callback,
                         AXObserverRef _Nullable* _Nonnull __attribute__((cf_returns_retained))
                         outObserver);
AXError AXObserverAddNotification(AXObserverRef observer, AXUIElementRef element,
                                  CFStringRef notification, void* _Nullable refcon);
AXError AXObserverRemoveNotification(AXObserverRef observer, AXUIElementRef element,
                                     CFStringRef notification);
CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer);

#pragma clang arc_cf_code_audited end

#ifdef __cplusplus
}
#endif

// Attribute, action and notification names are CFSTR macros.
#define kAXPositionAttribute CFSTR("AXPosition")
#define kAXSizeAttribute CFSTR("AXSize")
#define kAXWindowsAttribute CFSTR("AXWindows")
#define kAXFocusedWindowAttribute CFSTR("AXFocusedWindow")
#define kAXMainWindowAttribute CFSTR("AXMainWindow")
#define kAXFocusedUIElementAttribute CFSTR("AXFocusedUIElement")
#define kAXFocusedApplicationAttribute CFSTR("AXFocusedApplication")
#define kAXFrontmostAttribute CFSTR("AXFrontmost")
#define kAXTitleAttribute CFSTR("AXTitle")
#define kAXRoleAttribute CFSTR("AXRole")
#define kAXSubroleAttribute CFSTR("AXSubrole")
#define kAXMinimizedAttribute CFSTR("AXMinimized")
#define kAXRaiseAction CFSTR("AXRaise")
#define kAXPressAction CFSTR("AXPress")
#define kAXFocusedWindowChangedNotification CFSTR("AXFocusedWindowChanged")
#define kAXWindowMovedNotification CFSTR("AXWindowMoved")
#define kAXWindowResizedNotification CFSTR("AXWindowResized")
#define kAXWindowCreatedNotification CFSTR("AXWindowCreated")
#define kAXUIElementDestroyedNotification CFSTR("AXUIElementDestroyed")
#define kAXApplicationActivatedNotification CFSTR("AXApplicationActivated")
