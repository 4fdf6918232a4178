#pragma once
// ScreenCaptureKit, written from Apple's documentation
// (developer.apple.com/documentation/screencapturekit/<class>/<member>). Looked up:
// SCShareableContent (getShareableContentExcludingDesktopWindows:onScreenWindowsOnly:
// completionHandler:, displays, windows), SCDisplay, SCWindow, SCRunningApplication,
// SCContentFilter (initWithDisplay:excludingWindows:, initWithDesktopIndependentWindow:,
// pointPixelScale), SCStreamConfiguration (width, height, sourceRect, showsCursor,
// capturesAudio, captureMicrophone), SCStream, SCStreamDelegate, SCScreenshotManager
// (captureImageWithFilter:configuration:completionHandler:), SCRecordingOutput,
// SCRecordingOutputConfiguration (outputURL), SCRecordingOutputDelegate.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphics.h>

#define QV_MACOS(version) __attribute__((availability(macos, introduced = version)))

NS_ASSUME_NONNULL_BEGIN

@class SCStream;
@class SCRecordingOutput;

QV_MACOS(12.3)
@interface SCRunningApplication : NSObject
@property(readonly) NSString* bundleIdentifier;
@property(readonly) NSString* applicationName;
@property(readonly) pid_t processID;
@end

QV_MACOS(12.3)
@interface SCDisplay : NSObject
@property(readonly) CGDirectDisplayID displayID;
@property(readonly) NSInteger width;
@property(readonly) NSInteger height;
@property(readonly) CGRect frame;
@end

QV_MACOS(12.3)
@interface SCWindow : NSObject
@property(readonly) CGWindowID windowID;
@property(readonly) CGRect frame;
@property(readonly, nullable) NSString* title;
@property(readonly) NSInteger windowLayer;
@property(readonly, nullable) SCRunningApplication* owningApplication;
@property(readonly, getter=isOnScreen) BOOL onScreen;
@end

QV_MACOS(12.3)
@interface SCShareableContent : NSObject
+ (void)getShareableContentExcludingDesktopWindows:(BOOL)excludeDesktopWindows
                               onScreenWindowsOnly:(BOOL)onScreenWindowsOnly
                                 completionHandler:
                                     (void (^)(SCShareableContent* _Nullable shareableContent,
                                               NSError* _Nullable error))completionHandler;
@property(readonly) NSArray<SCWindow*>* windows;
@property(readonly) NSArray<SCDisplay*>* displays;
@property(readonly) NSArray<SCRunningApplication*>* applications;
@end

QV_MACOS(12.3)
@interface SCContentFilter : NSObject
- (instancetype)initWithDesktopIndependentWindow:(SCWindow*)window;
- (instancetype)initWithDisplay:(SCDisplay*)display excludingWindows:(NSArray<SCWindow*>*)excluded;
@property(readonly) float pointPixelScale QV_MACOS(14.0);
@property(readonly) CGRect contentRect QV_MACOS(14.0);
@end

QV_MACOS(12.3)
@interface SCStreamConfiguration : NSObject
@property size_t width;
@property size_t height;
@property CGRect sourceRect;
@property BOOL scalesToFit;
@property BOOL showsCursor;
@property BOOL capturesAudio QV_MACOS(13.0);
@property BOOL excludesCurrentProcessAudio QV_MACOS(13.0);
@property BOOL captureMicrophone QV_MACOS(15.0);
@end

@protocol SCStreamDelegate <NSObject>
@optional
- (void)stream:(SCStream*)stream didStopWithError:(NSError*)error;
@end

QV_MACOS(12.3)
@interface SCStream : NSObject
- (instancetype)initWithFilter:(SCContentFilter*)contentFilter
                 configuration:(SCStreamConfiguration*)streamConfig
                      delegate:(nullable id<SCStreamDelegate>)delegate;
- (void)startCaptureWithCompletionHandler:
    (nullable void (^)(NSError* _Nullable error))completionHandler;
- (void)stopCaptureWithCompletionHandler:
    (nullable void (^)(NSError* _Nullable error))completionHandler;
- (BOOL)addRecordingOutput:(SCRecordingOutput*)recordingOutput
                     error:(NSError**)error QV_MACOS(15.0);
@end

QV_MACOS(14.0)
@interface SCScreenshotManager : NSObject
+ (void)captureImageWithFilter:(SCContentFilter*)contentFilter
                 configuration:(SCStreamConfiguration*)config
             completionHandler:(nullable void (^)(CGImageRef _Nullable sampleBuffer,
                                                  NSError* _Nullable error))completionHandler;
@end

QV_MACOS(15.0)
@interface SCRecordingOutputConfiguration : NSObject
@property(copy) NSURL* outputURL;
@end

@protocol SCRecordingOutputDelegate <NSObject>
@optional
- (void)recordingOutputDidStartRecording:(SCRecordingOutput*)recordingOutput;
- (void)recordingOutput:(SCRecordingOutput*)recordingOutput didFailWithError:(NSError*)error;
- (void)recordingOutputDidFinishRecording:(SCRecordingOutput*)recordingOutput;
@end

QV_MACOS(15.0)
@interface SCRecordingOutput : NSObject
- (instancetype)initWithConfiguration:(SCRecordingOutputConfiguration*)recordingOutputConfiguration
                             delegate:(id<SCRecordingOutputDelegate>)delegate;
@end

NS_ASSUME_NONNULL_END

#undef QV_MACOS
