#include "mac/MacPorts.hpp"

#include <memory>

#include "input/KeyCombo.hpp"
#include "mac/CFRef.hpp"
#include "mac/CancellableAction.hpp"
#include "mac/MacFloatingWindow.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"
#include "platform/AreaChoice.hpp"
#include "platform/RecordingProgress.hpp"
#include "platform/ShareableContent.hpp"

// Written from Apple's ScreenCaptureKit reference; none of it is in the fact sheet, so every
// call below is unconfirmed: check on a Mac first. In particular:
// - SCDisplay.frame and SCWindow.frame are taken to be in the global display space with its
//   origin at the top left of the main display, like CGDisplayBounds and accessibility frames.
// - SCStreamConfiguration.sourceRect is taken to be in the display's own points, top-left
//   origin.
// - Completion handlers run on an arbitrary queue, so every answer is passed to the main queue.
// - The stream is taken to hold its delegates and outputs weakly, so the recording session
//   keeps itself alive until it has reported.

namespace {

using quorvane::CancellableAction;
using quorvane::Rect;
using quorvane::ScreenCapture;
using quorvane::Thumbnail;

Rect rectFrom(CGRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

CGRect cgRect(const Rect& rect) {
    return CGRectMake(rect.minX(), rect.minY(), rect.width(), rect.height());
}

std::string describe(NSError* error) { return quorvane::errorText(error, "no reason given"); }

// The filter for a target, from freshly listed content; nil when the display or window is
// gone.
SCContentFilter* makeFilter(SCShareableContent* content, const ScreenCapture::Target& target) {
    if (target.kind == ScreenCapture::Target::Kind::window) {
        for (SCWindow* window in content.windows) {
            if (window.windowID == target.id) {
                return [[SCContentFilter alloc] initWithDesktopIndependentWindow:window];
            }
        }
        return nil;
    }
    for (SCDisplay* display in content.displays) {
        if (display.displayID == target.id) {
            return [[SCContentFilter alloc] initWithDisplay:display excludingWindows:@[]];
        }
    }
    return nil;
}

// The filter for a target from freshly listed content, or why there is none; `found` runs on
// whatever queue ScreenCaptureKit answers on. Desktop and off-screen windows are listed only
// when `everyWindow` is set.
void findFilter(const ScreenCapture::Target& target, BOOL everyWindow,
                void (^found)(SCContentFilter* filter, std::string failure)) {
    const ScreenCapture::Target wanted = target;
    [SCShareableContent
        getShareableContentExcludingDesktopWindows:!everyWindow
                               onScreenWindowsOnly:!everyWindow
                                 completionHandler:^(SCShareableContent* content, NSError* error) {
                                   if (content == nil) {
                                       found(nil, describe(error));
                                       return;
                                   }
                                   SCContentFilter* filter = makeFilter(content, wanted);
                                   found(filter, filter != nil ? std::string()
                                                               : "the display or window is gone");
                                 }];
}

SCStreamConfiguration* makeConfiguration(const ScreenCapture::Target& target, int width,
                                         int height) {
    SCStreamConfiguration* configuration = [[SCStreamConfiguration alloc] init];
    configuration.width = static_cast<size_t>(width);
    configuration.height = static_cast<size_t>(height);
    if (target.sourceRect) {
        configuration.sourceRect = cgRect(*target.sourceRect);
    }
    return configuration;
}

ScreenCapture::Content convert(SCShareableContent* content) {
    ScreenCapture::Content result;
    for (SCDisplay* display in content.displays) {
        SCContentFilter* filter = [[SCContentFilter alloc] initWithDisplay:display
                                                          excludingWindows:@[]];
        result.displays.push_back({display.displayID, rectFrom(display.frame),
                                   static_cast<double>(filter.pointPixelScale)});
    }
    for (SCWindow* window in content.windows) {
        ScreenCapture::Window listed;
        listed.windowID = window.windowID;
        // A window without an owner answers 0 and one without a title empty text.
        listed.pid = window.owningApplication.processID;
        listed.title = quorvane::utf8String(window.title);
        listed.frame = rectFrom(window.frame);
        listed.layer = static_cast<int>(window.windowLayer);
        listed.onScreen = window.onScreen;
        result.windows.push_back(std::move(listed));
    }
    assignWindowScales(result);
    return result;
}

}  // namespace

// Something a recording can be told to stop; lets the C++ side hold the session without
// naming a class that exists only from macOS 15.
@protocol QVStoppable <NSObject>
- (void)stop;
- (void)forget;
@end

__attribute__((availability(macos, introduced = 15.0)))
@interface QVRecordingSession : NSObject<SCStreamDelegate, SCRecordingOutputDelegate, QVStoppable>
- (instancetype)initWithHandler:(ScreenCapture::FinishHandler)handler;
- (void)start:(const ScreenCapture::RecordingRequest&)request;
@end

@implementation QVRecordingSession {
    quorvane::RecordingProgress _progress;
    SCStream* _stream;
    SCRecordingOutput* _output;
    QVRecordingSession* _keepAlive;
}

- (instancetype)initWithHandler:(ScreenCapture::FinishHandler)handler {
    if ((self = [super init])) {
        _progress = quorvane::RecordingProgress(std::move(handler));
        _keepAlive = self;
    }
    return self;
}

- (void)start:(const ScreenCapture::RecordingRequest&)request {
    const ScreenCapture::RecordingRequest wanted = request;
    findFilter(request.target, NO, ^(SCContentFilter* filter, std::string failure) {
      dispatch_async(dispatch_get_main_queue(), ^{
        [self begin:wanted filter:filter failure:failure];
      });
    });
}

- (void)begin:(const ScreenCapture::RecordingRequest&)request
       filter:(SCContentFilter*)filter
      failure:(const std::string&)failure {
    if (!_progress.begins(filter != nil, failure)) {
        _keepAlive = nil;
        return;
    }
    SCStreamConfiguration* configuration =
        makeConfiguration(request.target, request.width, request.height);
    configuration.showsCursor = request.showsCursor;
    configuration.capturesAudio = request.capturesAudio;
    configuration.excludesCurrentProcessAudio = YES;
    configuration.captureMicrophone = request.capturesMicrophone;
    SCRecordingOutputConfiguration* outputConfiguration =
        [[SCRecordingOutputConfiguration alloc] init];
    outputConfiguration.outputURL = [NSURL fileURLWithPath:quorvane::text(request.path)];
    _output = [[SCRecordingOutput alloc] initWithConfiguration:outputConfiguration delegate:self];
    _stream = [[SCStream alloc] initWithFilter:filter configuration:configuration delegate:self];
    NSError* addError = nil;
    if (![_stream addRecordingOutput:_output error:&addError]) {
        [self report:describe(addError)];
        return;
    }
    [_stream startCaptureWithCompletionHandler:^(NSError* startError) {
      if (startError != nil) {
          [self reportLater:startError];
      }
    }];
}

- (void)stop {
    _progress.stopRequested();
    [_stream stopCaptureWithCompletionHandler:^(NSError* stopError) {
      if (stopError != nil) {
          [self reportLater:stopError];
      }
    }];
}

- (void)forget {
    _progress.forget();
}

// Once, on the main thread; an empty text means the movie file is complete.
- (void)report:(const std::string&)error {
    _progress.report(error);
    _keepAlive = nil;
}

// From any queue.
- (void)reportLater:(NSError*)error {
    const std::string text = describe(error);
    dispatch_async(dispatch_get_main_queue(), ^{
      [self report:text];
    });
}

- (void)stream:(SCStream*)stream didStopWithError:(NSError*)error {
    [self reportLater:error];
}

- (void)recordingOutput:(SCRecordingOutput*)recordingOutput didFailWithError:(NSError*)error {
    [self reportLater:error];
}

- (void)recordingOutputDidFinishRecording:(SCRecordingOutput*)recordingOutput {
    dispatch_async(dispatch_get_main_queue(), ^{
      [self report:""];
    });
}

@end

// A borderless window can only become key, and so see Esc, when it says it can.
@interface QVAreaWindow : NSWindow
@end

@implementation QVAreaWindow
- (BOOL)canBecomeKeyWindow {
    return YES;
}
@end

// The crosshair: drag out a rectangle; Esc or a right click cancels.
@interface QVAreaView : NSView
@property(nonatomic, copy) void (^finished)(NSRect screenRect, BOOL chosen);
@end

@implementation QVAreaView {
    NSPoint _start;
    NSRect _selection;
}

- (BOOL)acceptsFirstMouse:(NSEvent*)event {
    return YES;
}

- (BOOL)acceptsFirstResponder {
    return YES;
}

- (void)resetCursorRects {
    [self addCursorRect:self.bounds cursor:[NSCursor crosshairCursor]];
}

- (void)mouseDown:(NSEvent*)event {
    _start = [self convertPoint:event.locationInWindow fromView:nil];
    _selection = NSMakeRect(_start.x, _start.y, 0, 0);
}

- (void)mouseDragged:(NSEvent*)event {
    const NSPoint now = [self convertPoint:event.locationInWindow fromView:nil];
    _selection =
        cgRect(Rect(_start.x, _start.y, now.x - _start.x, now.y - _start.y).standardized());
    [self setNeedsDisplay:YES];
}

- (void)mouseUp:(NSEvent*)event {
    [self mouseDragged:event];
    const NSRect inWindow = [self convertRect:_selection toView:nil];
    self.finished([self.window convertRectToScreen:inWindow], YES);
}

- (void)rightMouseDown:(NSEvent*)event {
    self.finished(NSZeroRect, NO);
}

- (void)keyDown:(NSEvent*)event {
    if (event.keyCode == quorvane::KeyCombo::kEscapeKeyCode) {
        self.finished(NSZeroRect, NO);
    }
}

- (void)drawRect:(NSRect)dirtyRect {
    [[NSColor colorWithCalibratedWhite:0 alpha:0.15] setFill];
    NSRectFill(self.bounds);
    if (_selection.size.width > 0 && _selection.size.height > 0) {
        // NSRectFill copies, so a clear fill cuts the chosen area out of the tint.
        [[NSColor clearColor] setFill];
        NSRectFill(_selection);
        [[NSColor whiteColor] setStroke];
        [NSBezierPath strokeRect:_selection];
    }
}

@end

namespace quorvane {

namespace {

class MacRecording final : public ScreenCapture::Recording {
public:
    explicit MacRecording(id<QVStoppable> session) : session_(session) {}
    ~MacRecording() override {
        [session_ forget];
        [session_ stop];
    }
    void stop() override { [session_ stop]; }

private:
    id<QVStoppable> session_;
};

// Screen capture through ScreenCaptureKit; recordings through its recording output.
class MacScreenCapture final : public ScreenCapture {
public:
    Subscription shareableContent(ContentHandler handler) override {
        using Callback = CancellableAction<std::optional<Content>, const std::string&>;
        auto shared = std::make_shared<Callback>(std::move(handler));
        [SCShareableContent
            getShareableContentExcludingDesktopWindows:YES
                                   onScreenWindowsOnly:YES
                                     completionHandler:^(SCShareableContent* content,
                                                         NSError* error) {
                                       std::optional<Content> listed;
                                       if (content != nil) {
                                           listed = convert(content);
                                       }
                                       const std::string failure =
                                           content != nil ? std::string() : describe(error);
                                       dispatch_async(dispatch_get_main_queue(), ^{
                                         Callback::run(shared, listed, failure);
                                       });
                                     }];
        return Subscription([shared] { shared->cancelled = true; });
    }

    Subscription captureImage(const Target& target, int pixelWidth, int pixelHeight,
                              ImageHandler handler) override {
        using Callback = CancellableAction<std::optional<Thumbnail>, const std::string&>;
        auto shared = std::make_shared<Callback>(std::move(handler));
        const auto deliver = ^(std::optional<Thumbnail> image, std::string failure) {
          dispatch_async(dispatch_get_main_queue(), ^{
            Callback::run(shared, image, failure);
          });
        };
        SCStreamConfiguration* configuration = makeConfiguration(target, pixelWidth, pixelHeight);
        findFilter(target, YES, ^(SCContentFilter* filter, std::string failure) {
          if (filter == nil) {
              deliver(std::nullopt, failure);
              return;
          }
          [SCScreenshotManager
              captureImageWithFilter:filter
                       configuration:configuration
                   completionHandler:^(CGImageRef image, NSError* error) {
                     if (image == nullptr) {
                         deliver(std::nullopt, describe(error));
                         return;
                     }
                     // The handler's reference lasts only as long as the call; the thumbnail
                     // keeps its own.
                     CFRetain(image);
                     Thumbnail thumbnail;
                     thumbnail.width = static_cast<int>(CGImageGetWidth(image));
                     thumbnail.height = static_cast<int>(CGImageGetHeight(image));
                     thumbnail.image = std::shared_ptr<const void>(
                         image, [](const void* held) { CFRelease(static_cast<CFTypeRef>(held)); });
                     deliver(thumbnail, {});
                   }];
        });
        return Subscription([shared] { shared->cancelled = true; });
    }

    std::unique_ptr<ScreenCapture::Recording> startRecording(const RecordingRequest& request,
                                                             FinishHandler finished,
                                                             std::string& error) override {
        if (@available(macOS 15.0, *)) {
            QVRecordingSession* session =
                [[QVRecordingSession alloc] initWithHandler:std::move(finished)];
            [session start:request];
            return std::make_unique<MacRecording>(session);
        }
        error = "recording needs macOS 15 or later";
        return nullptr;
    }

    bool writePNG(const Thumbnail& image, const std::string& path) override {
        if (!image.image) {
            return false;
        }
        @autoreleasepool {
            NSURL* url = [NSURL fileURLWithPath:text(path)];
            const auto destination =
                CFRef<CGImageDestinationRef>::adopt(CGImageDestinationCreateWithURL(
                    (__bridge CFURLRef)url, CFSTR("public.png"), 1, nullptr));
            if (!destination) {
                return false;
            }
            CGImageDestinationAddImage(
                destination.get(), static_cast<CGImageRef>(const_cast<void*>(image.image.get())),
                nullptr);
            return CGImageDestinationFinalize(destination.get());
        }
    }

    Subscription selectArea(AreaHandler handler) override {
        NSMutableArray<NSWindow*>* windows = [NSMutableArray array];
        NSScreen* primary = NSScreen.screens.firstObject;
        const auto choice = std::make_shared<AreaChoice>(
            std::move(handler),
            [windows] {
                for (NSWindow* window in windows) {
                    [window orderOut:nil];
                }
                [windows removeAllObjects];
            },
            primary.frame.size.height);
        void (^finish)(NSRect, BOOL) = ^(NSRect screenRect, BOOL chosen) {
          choice->finish(chosen ? std::optional(rectFrom(screenRect)) : std::nullopt);
        };
        for (NSScreen* screen in NSScreen.screens) {
            QVAreaWindow* window =
                makeFloatingWindow([QVAreaWindow class], screen.frame, NSWindowStyleMaskBorderless,
                                   NSScreenSaverWindowLevel, [NSColor clearColor]);
            QVAreaView* view = [[QVAreaView alloc]
                initWithFrame:NSMakeRect(0, 0, screen.frame.size.width, screen.frame.size.height)];
            view.finished = finish;
            window.contentView = view;
            [windows addObject:window];
            [window makeKeyAndOrderFront:nil];
        }
        [NSApp activate];
        // Turning the tool off while the crosshair is up takes the crosshair away too.
        return Subscription([choice] { choice->cancel(); });
    }
};

}  // namespace

std::unique_ptr<ScreenCapture> makeMacScreenCapture() {
    return std::make_unique<MacScreenCapture>();
}

}  // namespace quorvane
