#pragma once
// Core Foundation as the macOS layer uses it, written from Apple's documentation
// (developer.apple.com/documentation/corefoundation/<name>). Entries marked "looked up" were
// read there for this check; the rest follow the same pages' declarations. Like the real
// headers, the functions are ARC-audited (Create/Copy results are +1, the rest +0) and the
// toll-free bridged types name their Foundation class, so casts to Objective-C need the
// bridge ARC asks for on a Mac.
#include <MacTypes.h>

#ifdef __cplusplus
extern "C" {
#endif

#pragma clang arc_cf_code_audited begin

typedef const void* CFTypeRef;
typedef unsigned long CFTypeID;
typedef signed long CFIndex;
typedef unsigned long CFHashCode;
typedef unsigned long CFOptionFlags;
typedef double CFTimeInterval;
typedef CFTimeInterval CFAbsoluteTime;

typedef struct {
    CFIndex location;
    CFIndex length;
} CFRange;
static inline CFRange CFRangeMake(CFIndex location, CFIndex length) {
    CFRange range;
    range.location = location;
    range.length = length;
    return range;
}

typedef const struct __attribute__((objc_bridge(id))) __CFAllocator* CFAllocatorRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString* CFStringRef;
typedef struct __attribute__((objc_bridge_mutable(NSMutableString))) __CFString* CFMutableStringRef;
typedef const struct __attribute__((objc_bridge(NSArray))) __CFArray* CFArrayRef;
typedef struct __attribute__((objc_bridge_mutable(NSMutableArray))) __CFArray* CFMutableArrayRef;
typedef const struct __attribute__((objc_bridge(NSDictionary))) __CFDictionary* CFDictionaryRef;
typedef struct __attribute__((objc_bridge_mutable(NSMutableDictionary)))
__CFDictionary* CFMutableDictionaryRef;
typedef const struct __attribute__((objc_bridge(NSNumber))) __CFNumber* CFNumberRef;
typedef const struct __attribute__((objc_bridge(NSNumber))) __CFBoolean* CFBooleanRef;
typedef const struct __attribute__((objc_bridge(NSData))) __CFData* CFDataRef;
typedef struct __attribute__((objc_bridge_mutable(NSMutableData))) __CFData* CFMutableDataRef;
typedef const struct __attribute__((objc_bridge(NSDate))) __CFDate* CFDateRef;
typedef const struct __attribute__((objc_bridge(NSURL))) __CFURL* CFURLRef;
typedef const struct __attribute__((objc_bridge(NSError))) __CFError* CFErrorRef;
typedef struct __attribute__((objc_bridge(id))) __CFRunLoop* CFRunLoopRef;
typedef struct __attribute__((objc_bridge(id))) __CFRunLoopSource* CFRunLoopSourceRef;
typedef struct __attribute__((objc_bridge(id))) __CFMachPort* CFMachPortRef;
typedef struct __attribute__((objc_bridge(id))) __CFBundle* CFBundleRef;
typedef const struct __attribute__((objc_bridge(id))) __CFUUID* CFUUIDRef;
typedef CFTypeRef CFPropertyListRef;
typedef CFStringRef CFRunLoopMode;
typedef UInt32 CFStringEncoding;

// Base (CFType): looked up.
CFTypeRef CFRetain(CFTypeRef cf);
void CFRelease(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);
CFIndex CFGetRetainCount(CFTypeRef cf);
Boolean CFEqual(CFTypeRef cf1, CFTypeRef cf2);
extern const CFAllocatorRef kCFAllocatorDefault;

// CFString.
typedef QV_CF_ENUM(CFStringEncoding, CFStringBuiltInEncodings){
    kCFStringEncodingMacRoman = 0,
    kCFStringEncodingASCII = 0x0600,
    kCFStringEncodingUTF8 = 0x08000100,
};
CFTypeID CFStringGetTypeID(void);
CFIndex CFStringGetLength(CFStringRef theString);
CFStringRef CFStringCreateWithBytes(CFAllocatorRef alloc, const UInt8* bytes, CFIndex numBytes,
                                    CFStringEncoding encoding, Boolean isExternalRepresentation);
CFStringRef CFStringCreateWithCharacters(CFAllocatorRef alloc, const UniChar* chars,
                                         CFIndex numChars);
CFStringRef CFStringCreateWithCString(CFAllocatorRef alloc, const char* cStr,
                                      CFStringEncoding encoding);
CFIndex CFStringGetBytes(CFStringRef theString, CFRange range, CFStringEncoding encoding,
                         UInt8 lossByte, Boolean isExternalRepresentation, UInt8* buffer,
                         CFIndex maxBufLen, CFIndex* usedBufLen);
Boolean CFStringGetCString(CFStringRef theString, char* buffer, CFIndex bufferSize,
                           CFStringEncoding encoding);
// A compile-time constant string, as the real CFSTR gives.
#define CFSTR(cStr) ((CFStringRef)__builtin___CFStringMakeConstantString("" cStr ""))

// CFNumber and CFBoolean.
typedef QV_CF_ENUM(CFIndex, CFNumberType){
    kCFNumberSInt8Type = 1,    kCFNumberSInt16Type = 2,    kCFNumberSInt32Type = 3,
    kCFNumberSInt64Type = 4,   kCFNumberFloat32Type = 5,   kCFNumberFloat64Type = 6,
    kCFNumberCharType = 7,     kCFNumberShortType = 8,     kCFNumberIntType = 9,
    kCFNumberLongType = 10,    kCFNumberLongLongType = 11, kCFNumberFloatType = 12,
    kCFNumberDoubleType = 13,  kCFNumberCFIndexType = 14,  kCFNumberNSIntegerType = 15,
    kCFNumberCGFloatType = 16,
};
CFTypeID CFNumberGetTypeID(void);
CFNumberRef CFNumberCreate(CFAllocatorRef allocator, CFNumberType theType, const void* valuePtr);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType theType, void* valuePtr);
Boolean CFNumberIsFloatType(CFNumberRef number);
CFNumberType CFNumberGetType(CFNumberRef number);
CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef boolean);
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;

// CFData and CFDate.
CFTypeID CFDataGetTypeID(void);
CFDataRef CFDataCreate(CFAllocatorRef allocator, const UInt8* bytes, CFIndex length);
CFIndex CFDataGetLength(CFDataRef theData);
const UInt8* CFDataGetBytePtr(CFDataRef theData);
CFTypeID CFDateGetTypeID(void);
CFDateRef CFDateCreate(CFAllocatorRef allocator, CFAbsoluteTime at);
CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef theDate);
CFAbsoluteTime CFAbsoluteTimeGetCurrent(void);

// CFArray.
typedef const void* (*CFArrayRetainCallBack)(CFAllocatorRef allocator, const void* value);
typedef void (*CFArrayReleaseCallBack)(CFAllocatorRef allocator, const void* value);
typedef CFStringRef (*CFArrayCopyDescriptionCallBack)(const void* value);
typedef Boolean (*CFArrayEqualCallBack)(const void* value1, const void* value2);
typedef struct {
    CFIndex version;
    CFArrayRetainCallBack retain;
    CFArrayReleaseCallBack release;
    CFArrayCopyDescriptionCallBack copyDescription;
    CFArrayEqualCallBack equal;
} CFArrayCallBacks;
extern const CFArrayCallBacks kCFTypeArrayCallBacks;
CFTypeID CFArrayGetTypeID(void);
CFArrayRef CFArrayCreate(CFAllocatorRef allocator, const void** values, CFIndex numValues,
                         const CFArrayCallBacks* callBacks);
CFMutableArrayRef CFArrayCreateMutable(CFAllocatorRef allocator, CFIndex capacity,
                                       const CFArrayCallBacks* callBacks);
CFIndex CFArrayGetCount(CFArrayRef theArray);
const void* CFArrayGetValueAtIndex(CFArrayRef theArray, CFIndex idx);
void CFArrayAppendValue(CFMutableArrayRef theArray, const void* value);

// CFDictionary.
typedef const void* (*CFDictionaryRetainCallBack)(CFAllocatorRef allocator, const void* value);
typedef void (*CFDictionaryReleaseCallBack)(CFAllocatorRef allocator, const void* value);
typedef CFStringRef (*CFDictionaryCopyDescriptionCallBack)(const void* value);
typedef Boolean (*CFDictionaryEqualCallBack)(const void* value1, const void* value2);
typedef CFHashCode (*CFDictionaryHashCallBack)(const void* value);
typedef struct {
    CFIndex version;
    CFDictionaryRetainCallBack retain;
    CFDictionaryReleaseCallBack release;
    CFDictionaryCopyDescriptionCallBack copyDescription;
    CFDictionaryEqualCallBack equal;
    CFDictionaryHashCallBack hash;
} CFDictionaryKeyCallBacks;
typedef struct {
    CFIndex version;
    CFDictionaryRetainCallBack retain;
    CFDictionaryReleaseCallBack release;
    CFDictionaryCopyDescriptionCallBack copyDescription;
    CFDictionaryEqualCallBack equal;
} CFDictionaryValueCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
CFTypeID CFDictionaryGetTypeID(void);
CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void** keys, const void** values,
                                   CFIndex numValues, const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks);
CFMutableDictionaryRef CFDictionaryCreateMutable(CFAllocatorRef allocator, CFIndex capacity,
                                                 const CFDictionaryKeyCallBacks* keyCallBacks,
                                                 const CFDictionaryValueCallBacks* valueCallBacks);
CFIndex CFDictionaryGetCount(CFDictionaryRef theDict);
const void* CFDictionaryGetValue(CFDictionaryRef theDict, const void* key);
void CFDictionaryGetKeysAndValues(CFDictionaryRef theDict, const void** keys, const void** values);
void CFDictionarySetValue(CFMutableDictionaryRef theDict, const void* key, const void* value);

// CFRunLoop (looked up: CFRunLoopPerformBlock, CFRunLoopWakeUp) and CFMachPort.
extern const CFRunLoopMode kCFRunLoopDefaultMode;
extern const CFRunLoopMode kCFRunLoopCommonModes;
CFRunLoopRef CFRunLoopGetMain(void);
CFRunLoopRef CFRunLoopGetCurrent(void);
void CFRunLoopAddSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopPerformBlock(CFRunLoopRef rl, CFTypeRef mode, void (^block)(void));
void CFRunLoopWakeUp(CFRunLoopRef rl);
CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef allocator, CFMachPortRef port,
                                                 CFIndex order);
void CFMachPortInvalidate(CFMachPortRef port);
Boolean CFMachPortIsValid(CFMachPortRef port);

// CFPreferences.
extern const CFStringRef kCFPreferencesCurrentApplication;
extern const CFStringRef kCFPreferencesAnyApplication;
extern const CFStringRef kCFPreferencesCurrentUser;
extern const CFStringRef kCFPreferencesAnyUser;
extern const CFStringRef kCFPreferencesCurrentHost;
extern const CFStringRef kCFPreferencesAnyHost;
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID);
void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID);
Boolean CFPreferencesAppSynchronize(CFStringRef applicationID);
CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef applicationID,
                                         CFStringRef userName, CFStringRef hostName);
void CFPreferencesSetValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID,
                           CFStringRef userName, CFStringRef hostName);
Boolean CFPreferencesSynchronize(CFStringRef applicationID, CFStringRef userName,
                                 CFStringRef hostName);
CFArrayRef CFPreferencesCopyKeyList(CFStringRef applicationID, CFStringRef userName,
                                    CFStringRef hostName);

// CFBundle and CFURL.
CFBundleRef CFBundleGetMainBundle(void);
CFStringRef CFBundleGetIdentifier(CFBundleRef bundle);
CFURLRef CFURLCreateWithFileSystemPath(CFAllocatorRef allocator, CFStringRef filePath,
                                       CFIndex pathStyle, Boolean isDirectory);
// Looked up: CFURLGetTypeID, CFURLGetString (Get rule, the URL's string as it was made).
CFTypeID CFURLGetTypeID(void);
CFStringRef CFURLGetString(CFURLRef anURL);

// CFUUID, looked up: CFUUIDCreateString (Create rule).
CFStringRef CFUUIDCreateString(CFAllocatorRef alloc, CFUUIDRef uuid);

// Property-list data, looked up: CFPropertyListCreateWithData (Create rule; the error, when
// asked for, is Create rule too), CFPropertyListMutabilityOptions, CFPropertyListFormat,
// CFErrorCopyDescription.
typedef QV_CF_ENUM(CFOptionFlags, CFPropertyListMutabilityOptions){
    kCFPropertyListImmutable = 0,
    kCFPropertyListMutableContainers = 1 << 0,
    kCFPropertyListMutableContainersAndLeaves = 1 << 1,
};
typedef QV_CF_ENUM(CFIndex, CFPropertyListFormat){
    kCFPropertyListOpenStepFormat = 1,
    kCFPropertyListXMLFormat_v1_0 = 100,
    kCFPropertyListBinaryFormat_v1_0 = 200,
};
CFPropertyListRef CFPropertyListCreateWithData(CFAllocatorRef allocator, CFDataRef data,
                                               CFOptionFlags options, CFPropertyListFormat* format,
                                               CFErrorRef* error);
CFStringRef CFErrorCopyDescription(CFErrorRef err);

#pragma clang arc_cf_code_audited end

#ifdef __cplusplus
}
#endif

// Foundation's bridging functions, declared in NSObject.h on a Mac (looked up:
// CFBridgingRelease, CFBridgingRetain). GNUstep's Foundation lacks them.
#if defined(__OBJC__) && __has_feature(objc_arc)
static inline __attribute__((always_inline)) id CFBridgingRelease(CFTypeRef
                                                                  __attribute__((cf_consumed)) x) {
    return (__bridge_transfer id)x;
}
static inline __attribute__((always_inline)) CFTypeRef CFBridgingRetain(id x) {
    return (__bridge_retained CFTypeRef)x;
}
#endif
