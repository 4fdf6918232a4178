#pragma once
// Finder Sync extensions (macOS 10.10), Objective-C only. Written from Apple's documentation
// (developer.apple.com/documentation/findersync: FIFinderSync, FIFinderSyncProtocol,
// FIFinderSyncController, FIMenuKind); only the members Quorvane uses. FIFinderSyncController
// derives from NSExtensionContext, which GNUstep lacks; NSObject stands in for it here.
#ifdef __OBJC__
#import <AppKit/AppKit.h>

typedef NS_ENUM(NSUInteger, FIMenuKind) {
    FIMenuKindContextualMenuForItems = 0,
    FIMenuKindContextualMenuForContainer = 1,
    FIMenuKindContextualMenuForSidebar = 2,
    FIMenuKindToolbarItemMenu = 3,
};

@protocol FIFinderSyncProtocol
@optional
- (nullable NSMenu*)menuForMenuKind:(FIMenuKind)menu;
- (void)beginObservingDirectoryAtURL:(NSURL*)url;
- (void)endObservingDirectoryAtURL:(NSURL*)url;
@end

@interface FIFinderSync : NSObject <FIFinderSyncProtocol>
@end

@interface FIFinderSyncController : NSObject
+ (instancetype)defaultController;
@property(copy) NSSet<NSURL*>* directoryURLs;
- (nullable NSURL*)targetedURL;
- (nullable NSArray<NSURL*>*)selectedItemURLs;
@end
#endif
