#pragma once
// Carbon's HIToolbox parts the macOS layer uses: global hot keys, the event handler that
// receives them, keyboard-layout input sources and UCKeyTranslate. Written from Apple's
// documentation (developer.apple.com/documentation/carbon/<name> and /coreservices/ for
// UCKeyTranslate); looked up: RegisterEventHotKey, InstallEventHandler, UCKeyTranslate.
#include <ApplicationServices/ApplicationServices.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct OpaqueEventRef* EventRef;
typedef struct OpaqueEventTargetRef* EventTargetRef;
typedef struct OpaqueEventHandlerRef* EventHandlerRef;
typedef struct OpaqueEventHandlerCallRef* EventHandlerCallRef;
typedef struct OpaqueEventHotKeyRef* EventHotKeyRef;
typedef OSType EventParamName;
typedef OSType EventParamType;

struct EventHotKeyID {
    OSType signature;
    UInt32 id;
};
typedef struct EventHotKeyID EventHotKeyID;
struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
};
typedef struct EventTypeSpec EventTypeSpec;

typedef OSStatus (*EventHandlerProcPtr)(EventHandlerCallRef inHandlerCallRef, EventRef inEvent,
                                        void* inUserData);
typedef EventHandlerProcPtr EventHandlerUPP;

enum { kEventClassKeyboard = 'keyb' };
enum {
    kEventRawKeyDown = 1,
    kEventRawKeyUp = 3,
    kEventHotKeyPressed = 5,
    kEventHotKeyReleased = 6
};
enum { kEventParamDirectObject = '----' };
enum { typeEventHotKeyID = 'hkid' };
enum { eventNotHandledErr = -9874, eventHotKeyExistsErr = -9878, eventHotKeyInvalidErr = -9879 };
enum { kEventHotKeyNoOptions = 0, kEventHotKeyExclusive = (1 << 0) };
enum {
    cmdKey = 1 << 8,
    shiftKey = 1 << 9,
    alphaLock = 1 << 10,
    optionKey = 1 << 11,
    controlKey = 1 << 12,
};

EventTargetRef GetApplicationEventTarget(void);
EventTargetRef GetEventDispatcherTarget(void);
OSStatus InstallEventHandler(EventTargetRef inTarget, EventHandlerUPP inHandler,
                             ItemCount inNumTypes, const EventTypeSpec* inList, void* inUserData,
                             EventHandlerRef* outRef);
OSStatus RemoveEventHandler(EventHandlerRef inHandlerRef);
OSStatus GetEventParameter(EventRef inEvent, EventParamName inName, EventParamType inDesiredType,
                           EventParamType* outActualType, ByteCount inBufferSize,
                           ByteCount* outActualSize, void* outData);
UInt32 GetEventKind(EventRef inEvent);
OSType GetEventClass(EventRef inEvent);
OSStatus RegisterEventHotKey(UInt32 inHotKeyCode, UInt32 inHotKeyModifiers,
                             EventHotKeyID inHotKeyID, EventTargetRef inTarget,
                             OptionBits inOptions, EventHotKeyRef* outRef);
OSStatus UnregisterEventHotKey(EventHotKeyRef inHotKey);

#pragma clang arc_cf_code_audited begin
typedef struct __attribute__((objc_bridge(id))) __TISInputSource* TISInputSourceRef;
TISInputSourceRef TISCopyCurrentKeyboardInputSource(void);
TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource(void);
TISInputSourceRef TISCopyCurrentASCIICapableKeyboardLayoutInputSource(void);
void* TISGetInputSourceProperty(TISInputSourceRef inputSource, CFStringRef propertyKey);
extern const CFStringRef kTISPropertyUnicodeKeyLayoutData;
extern const CFStringRef kTISPropertyLocalizedName;
extern const CFStringRef kTISPropertyInputSourceID;
// Looked up: TISCreateInputSourceList, TISSelectInputSource, kTISPropertyInputSourceCategory,
// kTISCategoryKeyboardInputSource, kTISPropertyInputSourceIsSelectCapable,
// kTISNotifySelectedKeyboardInputSourceChanged.
CFArrayRef TISCreateInputSourceList(CFDictionaryRef properties, Boolean includeAllInstalled);
OSStatus TISSelectInputSource(TISInputSourceRef inputSource);
extern const CFStringRef kTISPropertyInputSourceCategory;
extern const CFStringRef kTISCategoryKeyboardInputSource;
extern const CFStringRef kTISPropertyInputSourceIsSelectCapable;
extern const CFStringRef kTISNotifySelectedKeyboardInputSourceChanged;
#pragma clang arc_cf_code_audited end

UInt8 LMGetKbdType(void);

typedef struct UCKeyboardLayout UCKeyboardLayout;
enum { kUCKeyActionDown = 0, kUCKeyActionUp = 1, kUCKeyActionAutoKey = 2, kUCKeyActionDisplay = 3 };
enum { kUCKeyTranslateNoDeadKeysBit = 0 };
enum { kUCKeyTranslateNoDeadKeysMask = 1UL << kUCKeyTranslateNoDeadKeysBit };
OSStatus UCKeyTranslate(const UCKeyboardLayout* keyLayoutPtr, UInt16 virtualKeyCode,
                        UInt16 keyAction, UInt32 modifierKeyState, UInt32 keyboardType,
                        OptionBits keyTranslateOptions, UInt32* deadKeyState,
                        UniCharCount maxStringLength, UniCharCount* actualStringLength,
                        UniChar unicodeString[]);

#ifdef __cplusplus
}
#endif
