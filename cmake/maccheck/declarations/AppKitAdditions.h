#pragma once
// AppKit and Foundation API a Mac has and GNUstep's headers lack, declared as Apple documents
// them (developer.apple.com/documentation/appkit/<class>/<member>). Looked up for this check:
// NSStackView, NSWorkspaceOpenConfiguration, NSImageSymbolConfiguration, NSEvent's monitors.
// Where GNUstep already declares a class, only the missing members are added, in a category.
#ifdef __OBJC__
#import <AppKit/NSApplication.h>
#import <AppKit/NSButton.h>
#import <AppKit/NSColor.h>
#import <AppKit/NSColorSpace.h>
#import <AppKit/NSEvent.h>
#import <AppKit/NSFont.h>
#import <AppKit/NSImage.h>
#import <AppKit/NSImageView.h>
#import <AppKit/NSLayoutAnchor.h>
#import <AppKit/NSLayoutConstraint.h>
#import <AppKit/NSPasteboard.h>
#import <AppKit/NSPasteboardItem.h>
#import <AppKit/NSPopover.h>
#import <AppKit/NSRunningApplication.h>
#import <AppKit/NSScreen.h>
#import <AppKit/NSSlider.h>
#import <AppKit/NSStatusItem.h>
#import <AppKit/NSStatusBarButton.h>
#import <AppKit/NSTableView.h>
#import <AppKit/NSTextField.h>
#import <AppKit/NSUserInterfaceLayout.h>
#import <AppKit/NSView.h>
#import <AppKit/NSWindow.h>
#import <AppKit/NSWorkspace.h>
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphics.h>

NS_ASSUME_NONNULL_BEGIN

// Foundation.
typedef NSString* NSKeyValueChangeKey;

// Geometry.
// (GNUstep has the NSRectEdge type but only the older constant names.)
static const NSRectEdge NSRectEdgeMinX = 0;
static const NSRectEdge NSRectEdgeMinY = 1;
static const NSRectEdge NSRectEdgeMaxX = 2;
static const NSRectEdge NSRectEdgeMaxY = 3;

// Windows.
static const NSUInteger NSWindowCollectionBehaviorFullScreenNone = 1 << 9;
static const NSUInteger NSWindowCollectionBehaviorPrimary = 1 << 16;
static const NSUInteger NSWindowCollectionBehaviorAuxiliary = 1 << 17;
static const NSUInteger NSWindowCollectionBehaviorCanJoinAllApplications = 1 << 18;

// Animation through proxies.
@protocol NSAnimatablePropertyContainer
- (instancetype)animator;
@end
@interface NSWindow (QVMacAdditions) <NSAnimatablePropertyContainer>
@property(getter=isVisible, readonly) BOOL visible;
@end

// Core Animation layers hang off views; the class itself is QuartzCore's.
@class CALayer;
@class NSLayoutXAxisAnchor, NSLayoutYAxisAnchor, NSLayoutDimension;

@interface NSView (QVMacAdditions) <NSAnimatablePropertyContainer>
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
@property BOOL translatesAutoresizingMaskIntoConstraints;
@property(readonly) NSSize fittingSize;
@property(readonly, strong) NSLayoutXAxisAnchor* leadingAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* trailingAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* leftAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* rightAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* topAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* bottomAnchor;
@property(readonly, strong) NSLayoutDimension* widthAnchor;
@property(readonly, strong) NSLayoutDimension* heightAnchor;
// Looked up: NSView addTrackingArea:, removeTrackingArea:, trackingAreas.
- (void)addTrackingArea:(NSTrackingArea*)trackingArea;
- (void)removeTrackingArea:(NSTrackingArea*)trackingArea;
@property(readonly, copy) NSArray<NSTrackingArea*>* trackingAreas;
// Looked up: NSView updateTrackingAreas (macOS 10.5), overridden to renew tracking areas.
- (void)updateTrackingAreas;
@property(readonly, strong) NSLayoutXAxisAnchor* centerXAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* centerYAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* firstBaselineAnchor;
- (void)setContentHuggingPriority:(NSLayoutPriority)priority
                   forOrientation:(NSLayoutConstraintOrientation)orientation;
- (void)setContentCompressionResistancePriority:(NSLayoutPriority)priority
                                 forOrientation:(NSLayoutConstraintOrientation)orientation;
@end

typedef NS_ENUM(NSInteger, NSStackViewGravity) {
    NSStackViewGravityTop = 1,
    NSStackViewGravityLeading = 1,
    NSStackViewGravityCenter = 2,
    NSStackViewGravityBottom = 3,
    NSStackViewGravityTrailing = 3,
};
typedef NS_ENUM(NSInteger, NSStackViewDistribution) {
    NSStackViewDistributionGravityAreas = -1,
    NSStackViewDistributionFill = 0,
    NSStackViewDistributionFillEqually = 1,
    NSStackViewDistributionFillProportionally = 2,
    NSStackViewDistributionEqualSpacing = 3,
    NSStackViewDistributionEqualCentering = 4,
};

@interface NSStackView : NSView
+ (instancetype)stackViewWithViews:(NSArray<NSView*>*)views;
@property NSUserInterfaceLayoutOrientation orientation;
@property NSLayoutAttribute alignment;
@property NSEdgeInsets edgeInsets;
@property NSStackViewDistribution distribution;
@property CGFloat spacing;
@property BOOL detachesHiddenViews;
@property(readonly, copy) NSArray<__kindof NSView*>* arrangedSubviews;
- (void)addArrangedSubview:(NSView*)view;
- (void)insertArrangedSubview:(NSView*)view atIndex:(NSInteger)index;
- (void)removeArrangedSubview:(NSView*)view;
- (void)setCustomSpacing:(CGFloat)spacing afterView:(NSView*)view;
- (NSLayoutPriority)huggingPriorityForOrientation:(NSLayoutConstraintOrientation)orientation;
- (void)setHuggingPriority:(NSLayoutPriority)priority
            forOrientation:(NSLayoutConstraintOrientation)orientation;
@end

// Images and SF Symbols.
typedef CGFloat NSFontWeight;
typedef NS_ENUM(NSInteger, NSImageSymbolScale) {
    NSImageSymbolScaleSmall = 1,
    NSImageSymbolScaleMedium = 2,
    NSImageSymbolScaleLarge = 3,
};
typedef NSString* NSFontTextStyle;
typedef NSString* NSFontTextStyleOptionKey;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleLargeTitle;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleTitle1;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleTitle2;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleTitle3;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleHeadline;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleSubheadline;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleBody;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleCallout;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleFootnote;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleCaption1;
APPKIT_EXPORT NSFontTextStyle const NSFontTextStyleCaption2;
APPKIT_EXPORT const NSFontWeight NSFontWeightRegular;
APPKIT_EXPORT const NSFontWeight NSFontWeightMedium;
APPKIT_EXPORT const NSFontWeight NSFontWeightSemibold;
APPKIT_EXPORT const NSFontWeight NSFontWeightBold;

@interface NSImageSymbolConfiguration : NSObject <NSCopying>
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize
                                    weight:(NSFontWeight)weight
                                     scale:(NSImageSymbolScale)scale;
+ (instancetype)configurationWithTextStyle:(NSFontTextStyle)style;
+ (instancetype)configurationWithScale:(NSImageSymbolScale)scale;
@end

@interface NSImage (QVMacAdditions)
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
// The template flag: as a property its name is a C++ keyword, so Objective-C++ reaches it
// through its accessors.
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
// Looked up: NSImage initWithCGImage:size: (macOS 10.6); NSZeroSize keeps the pixel size.
- (instancetype)initWithCGImage:(CGImageRef)cgImage size:(NSSize)size;
@end

@interface NSFont (QVMacAdditions)
+ (NSFont*)preferredFontForTextStyle:(NSFontTextStyle)style
                             options:(NSDictionary<NSFontTextStyleOptionKey, id>*)options;
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight;
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight;
@end

@interface NSColor (QVMacAdditions)
@property(class, strong, readonly) NSColor* separatorColor;
@property(class, strong, readonly) NSColor* controlAccentColor;
@property(class, strong, readonly) NSColor* labelColor;
@property(class, strong, readonly) NSColor* secondaryLabelColor;
@property(class, strong, readonly) NSColor* tertiaryLabelColor;
@property(class, strong, readonly) NSColor* systemGreenColor;
@property(class, strong, readonly) NSColor* systemOrangeColor;
@property(class, strong, readonly) NSColor* systemYellowColor;
@property(class, strong, readonly) NSColor* systemGrayColor;
@property(class, strong, readonly) NSColor* systemBlueColor;
@property(readonly) CGColorRef CGColor;
@end

// Controls.
// (GNUstep has the NSButtonType type but only the older constant names.)
static const NSButtonType NSButtonTypeMomentaryLight = (NSButtonType)0;
static const NSButtonType NSButtonTypePushOnPushOff = (NSButtonType)1;
static const NSButtonType NSButtonTypeToggle = (NSButtonType)2;
static const NSButtonType NSButtonTypeSwitch = (NSButtonType)3;
static const NSButtonType NSButtonTypeRadio = (NSButtonType)4;
static const NSButtonType NSButtonTypeMomentaryChange = (NSButtonType)5;
static const NSButtonType NSButtonTypeOnOff = (NSButtonType)6;
static const NSButtonType NSButtonTypeMomentaryPushIn = (NSButtonType)7;

@interface NSControl (QVMacAdditions)
@property NSLineBreakMode lineBreakMode;
@end

@interface NSButton (QVMacAdditions)
+ (instancetype)buttonWithTitle:(NSString*)title
                         target:(nullable id)target
                         action:(nullable SEL)action;
+ (instancetype)buttonWithImage:(NSImage*)image
                         target:(nullable id)target
                         action:(nullable SEL)action;
+ (instancetype)buttonWithTitle:(NSString*)title
                          image:(NSImage*)image
                         target:(nullable id)target
                         action:(nullable SEL)action;
+ (instancetype)checkboxWithTitle:(NSString*)title
                           target:(nullable id)target
                           action:(nullable SEL)action;
+ (instancetype)radioButtonWithTitle:(NSString*)title
                              target:(nullable id)target
                              action:(nullable SEL)action;
@property(nullable, copy) NSColor* contentTintColor;
@property BOOL hasDestructiveAction;
@end

@interface NSTextField (QVMacAdditions)
+ (instancetype)labelWithString:(NSString*)stringValue;
+ (instancetype)wrappingLabelWithString:(NSString*)stringValue;
+ (instancetype)textFieldWithString:(NSString*)stringValue;
@property(nullable, copy) NSString* placeholderString;
@property CGFloat preferredMaxLayoutWidth;
@property NSInteger maximumNumberOfLines;
@end

@interface NSImageView (QVMacAdditions)
+ (instancetype)imageViewWithImage:(NSImage*)image;
@property(nullable, copy) NSColor* contentTintColor;
@property(nullable, copy) NSImageSymbolConfiguration* symbolConfiguration;
@end

@interface NSSlider (QVMacAdditions)
+ (instancetype)sliderWithValue:(double)value
                       minValue:(double)minValue
                       maxValue:(double)maxValue
                         target:(nullable id)target
                         action:(nullable SEL)action;
@end

typedef NS_ENUM(NSInteger, NSTableViewStyle) {
    NSTableViewStyleAutomatic = 0,
    NSTableViewStyleFullWidth = 1,
    NSTableViewStyleInset = 2,
    NSTableViewStyleSourceList = 3,
    NSTableViewStylePlain = 4,
};
@interface NSTableView (QVMacAdditions)
@property NSTableViewStyle style;
@end

@interface NSPopover (QVMacAdditions)
@property(readonly, getter=isShown) BOOL shown;
@end

@interface NSStatusItem (QVMacAdditions)
@property(readonly, strong, nullable) NSStatusBarButton* button;
@property(getter=isVisible) BOOL visible;
@end

// Events.
typedef NS_OPTIONS(NSUInteger, QVEventModifierFlagsAdditions) {
    NSEventModifierFlagCapsLock = 1 << 16,
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
    NSEventModifierFlagNumericPad = 1 << 21,
    NSEventModifierFlagHelp = 1 << 22,
    NSEventModifierFlagFunction = 1 << 23,
    NSEventModifierFlagDeviceIndependentFlagsMask = 0xffff0000UL,
};

@interface NSEvent (QVMacAdditions)
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))block;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
+ (nullable NSEvent*)eventWithCGEvent:(CGEventRef)cgEvent;
@property(nullable, readonly) CGEventRef CGEvent;
@end

// Applications and the workspace.
@interface NSApplication (QVMacAdditions)
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (NSApplicationActivationPolicy)activationPolicy;
- (void)activate;
- (void)yieldActivationToApplication:(NSRunningApplication*)application;
@end

@interface NSRunningApplication (QVMacAdditions)
- (BOOL)activateFromApplication:(NSRunningApplication*)application
                        options:(NSApplicationActivationOptions)options;
@end

@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
+ (instancetype)configuration;
@property BOOL activates;
@property BOOL addsToRecentItems;
@property BOOL createsNewApplicationInstance;
@property BOOL hides;
@property(copy) NSArray<NSString*>* arguments;
@end

APPKIT_EXPORT NSString* const NSWorkspaceApplicationKey;
APPKIT_EXPORT NSNotificationName const NSWorkspaceDidActivateApplicationNotification;
APPKIT_EXPORT NSNotificationName const NSWorkspaceDidDeactivateApplicationNotification;
APPKIT_EXPORT NSNotificationName const NSWorkspaceActiveSpaceDidChangeNotification;
APPKIT_EXPORT NSNotificationName const NSWorkspaceScreensDidSleepNotification;
APPKIT_EXPORT NSNotificationName const NSWorkspaceScreensDidWakeNotification;

@interface NSWorkspace (QVMacAdditions)
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
- (void)openApplicationAtURL:(NSURL*)applicationURL
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable app,
                                                NSError* _Nullable error))completionHandler;
- (void)openURL:(NSURL*)url
        configuration:(NSWorkspaceOpenConfiguration*)configuration
    completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable app,
                                         NSError* _Nullable error))completionHandler;
@property(readonly, nullable, strong) NSRunningApplication* menuBarOwningApplication;
@end

// The pasteboard (looked up: clearContents, writeObjects:, readObjectsForClasses:options:).
typedef NSString* NSPasteboardType;
typedef NSString* NSPasteboardReadingOptionKey;
APPKIT_EXPORT NSPasteboardType const NSPasteboardTypeFileURL;
APPKIT_EXPORT NSPasteboardType const NSPasteboardTypeURL;
APPKIT_EXPORT NSPasteboardType const NSPasteboardTypeHTML;
APPKIT_EXPORT NSPasteboardType const NSPasteboardTypeRTF;
APPKIT_EXPORT NSPasteboardReadingOptionKey const NSPasteboardURLReadingFileURLsOnlyKey;
@interface NSPasteboard (QVMacAdditions)
- (NSInteger)clearContents;
- (BOOL)writeObjects:(NSArray<id<NSPasteboardWriting>>*)objects;
- (nullable NSArray*)
    readObjectsForClasses:(NSArray<Class>*)classArray
                  options:(nullable NSDictionary<NSPasteboardReadingOptionKey, id>*)options;
@property(nullable, readonly, copy) NSArray<NSPasteboardItem*>* pasteboardItems;
@end

// The Trash (developer.apple.com/documentation/foundation/filemanager/trashitem(at:
// resultingitemurl:), macOS 10.8).
@interface NSFileManager (QVTrashAdditions)
- (BOOL)trashItemAtURL:(NSURL*)url
      resultingItemURL:(NSURL* _Nullable __autoreleasing* _Nullable)outResultingURL
                 error:(NSError* _Nullable __autoreleasing* _Nullable)error;
@end
// File handlers and icons (looked up: URLForApplicationToOpenContentType:,
// URLsForApplicationsToOpenContentType:, URLForApplicationToOpenURL:,
// URLsForApplicationsToOpenURL:, setDefaultApplicationAtURL:toOpenContentType:completionHandler:,
// setDefaultApplicationAtURL:toOpenURLsWithScheme:completionHandler:, iconForContentType:,
// NSImage imageWithSize:flipped:drawingHandler:, NSCompositingOperationSourceAtop).
@class UTType;
@interface NSWorkspace (QVFileHandlers)
- (NSImage*)iconForContentType:(UTType*)contentType;
- (nullable NSURL*)URLForApplicationToOpenContentType:(UTType*)contentType;
- (NSArray<NSURL*>*)URLsForApplicationsToOpenContentType:(UTType*)contentType;
- (nullable NSURL*)URLForApplicationToOpenURL:(NSURL*)url;
- (NSArray<NSURL*>*)URLsForApplicationsToOpenURL:(NSURL*)url;
- (void)setDefaultApplicationAtURL:(NSURL*)applicationURL
                 toOpenContentType:(UTType*)contentType
                 completionHandler:(void (^_Nullable)(NSError* _Nullable error))completionHandler;
- (void)setDefaultApplicationAtURL:(NSURL*)applicationURL
              toOpenURLsWithScheme:(NSString*)urlScheme
                 completionHandler:(void (^_Nullable)(NSError* _Nullable error))completionHandler;
@end
@interface NSImage (QVDrawingHandler)
+ (instancetype)imageWithSize:(NSSize)size
                      flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
               drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler;
@end
static const NSCompositingOperation NSCompositingOperationSourceAtop = 5;
// Menu-bar tools: status items' autosave names, windows' occlusion, screens' names and the
// calendar's day change; looked up: NSStatusItem.autosaveName, NSWindow.occlusionState,
// NSWindowDidChangeOcclusionStateNotification, NSScreen.localizedName (10.15),
// NSCalendarDayChangedNotification (10.9).
typedef NSString* NSStatusItemAutosaveName;
@interface NSStatusItem (QVMenuBarAdditions)
@property(null_resettable, copy) NSStatusItemAutosaveName autosaveName;
@end
typedef NS_OPTIONS(NSUInteger, NSWindowOcclusionState) {
    NSWindowOcclusionStateVisible = 1UL << 1,
};
@interface NSWindow (QVMenuBarAdditions)
@property(readonly) NSWindowOcclusionState occlusionState;
@end
APPKIT_EXPORT NSNotificationName const NSWindowDidChangeOcclusionStateNotification;
@interface NSScreen (QVMenuBarAdditions)
@property(readonly, copy) NSString* localizedName;
@end
FOUNDATION_EXPORT NSNotificationName const NSCalendarDayChangedNotification;
typedef NS_OPTIONS(NSUInteger, NSVolumeEnumerationOptions) {
    NSVolumeEnumerationSkipHiddenVolumes = 1UL << 1,
    NSVolumeEnumerationProduceFileReferenceURLs = 1UL << 2,
};
@interface NSFileManager (QVMacAdditions)
// The keys are NSURLResourceKey, a name for NSString that GNUstep lacks.
- (nullable NSArray<NSURL*>*)
    mountedVolumeURLsIncludingResourceValuesForKeys:(nullable NSArray<NSString*>*)propertyKeys
                                            options:(NSVolumeEnumerationOptions)options;
@end
// developer.apple.com/documentation/appkit/nscolorspace/srgb
@interface NSColorSpace (QuorvaneSRGB)
+ (NSColorSpace*)sRGBColorSpace;
@end

NS_ASSUME_NONNULL_END
#endif
