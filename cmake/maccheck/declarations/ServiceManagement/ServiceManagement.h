#pragma once
// The login-item service (macOS 13), Objective-C only. Written from Apple's documentation
// (developer.apple.com/documentation/servicemanagement/smappservice and its members); looked
// up: SMAppService.Status, status, daemon(plistName:), register(), unregister().
#ifdef __OBJC__
#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, SMAppServiceStatus) {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3,
};

@interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
+ (SMAppService*)loginItemServiceWithIdentifier:(NSString*)identifier;
+ (SMAppService*)daemonServiceWithPlistName:(NSString*)plistName;
- (BOOL)registerAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;
@property(readonly) SMAppServiceStatus status;
+ (void)openSystemSettingsLoginItems;
@end
#endif
