#pragma once
// CATapDescription, Objective-C only as on a Mac. Written from Apple's documentation
// (developer.apple.com/documentation/coreaudio/catapdescription and its members); looked up:
// the class page, CATapMuteBehavior, muteBehavior, isExclusive.
#ifdef __OBJC__
#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, CATapMuteBehavior) {
    CATapUnmuted = 0,
    CATapMuted = 1,
    CATapMutedWhenTapped = 2,
};

@interface CATapDescription : NSObject
- (instancetype)init;
- (instancetype)initStereoMixdownOfProcesses:(NSArray<NSNumber*>*)processesObjectIDsToIncludeInTap;
- (instancetype)initStereoGlobalTapButExcludeProcesses:
    (NSArray<NSNumber*>*)processesObjectIDsToExcludeFromTap;
- (instancetype)initMonoMixdownOfProcesses:(NSArray<NSNumber*>*)processesObjectIDsToIncludeInTap;
- (instancetype)initMonoGlobalTapButExcludeProcesses:
    (NSArray<NSNumber*>*)processesObjectIDsToExcludeFromTap;
- (instancetype)initWithProcesses:(NSArray<NSNumber*>*)processesObjectIDsToIncludeInTap
                     andDeviceUID:(NSString*)deviceUID
                       withStream:(NSInteger)stream;
@property(atomic, copy) NSString* name;
@property(atomic, copy) NSUUID* UUID;
@property(atomic, copy) NSArray<NSNumber*>* processes;
@property(atomic, getter=isMono) BOOL mono;
@property(atomic, getter=isExclusive) BOOL exclusive;
@property(atomic, getter=isMixdown) BOOL mixdown;
@property(atomic, getter=isPrivate, setter=setPrivate:) BOOL privateTap;
@property(atomic, getter=isMuted) CATapMuteBehavior muteBehavior;
@property(atomic, copy, nullable) NSString* deviceUID;
@property(atomic, copy, nullable) NSNumber* stream;
@end
#endif
