#pragma once

// The one way framework headers enter the macOS layer. AppKit and Foundation are Objective-C,
// so only Objective-C++ files may include this; headers that portable C++ sees never do.
#if !defined(__OBJC__) || !defined(__cplusplus)
#error "MacFrameworks.h is for Objective-C++ (.mm) files only"
#endif

// Every file that reaches the frameworks holds Objective-C objects, and ARC is what releases
// them: without it they would leak silently.
#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

// AppKit first, as its umbrella brings in what the rest build on.
// clang-format off
#import <AppKit/AppKit.h>
#include <ApplicationServices/ApplicationServices.h>
#include <Carbon/Carbon.h>
#include <CoreAudio/CoreAudio.h>
#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/pwr_mgt/IOPMLib.h>
#include <IOKit/IOMessage.h>
#include <IOKit/ps/IOPowerSources.h>
#include <IOKit/ps/IOPSKeys.h>
#include <DiskArbitration/DiskArbitration.h>
// AppKit only names CALayer; its properties (views' corner radius and colours) are QuartzCore's.
#import <QuartzCore/QuartzCore.h>
// The umbrella leaves out the process-tap headers, which are Objective-C only.
#import <CoreAudio/AudioHardwareTapping.h>
#import <CoreAudio/CATapDescription.h>
#include <CommonCrypto/CommonDigest.h>
#include <ImageIO/ImageIO.h>
#include <libproc.h>
#include <os/log.h>
// UTType, which NSWorkspace's handler and icon methods take.
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

// unconfirmed: check on a Mac first (the umbrella name; only SMAppService.h itself was read).
#import <ServiceManagement/ServiceManagement.h>
// AppKit's umbrella brings the colour sampler and ImageIO's its destinations on a Mac; they are
// named here for the check, whose stand-in headers lack them.
#import <AppKit/NSColorSampler.h>
#include <ImageIO/CGImageDestination.h>
#import <ScreenCaptureKit/ScreenCaptureKit.h>
#import <Vision/Vision.h>
// The menu-bar calendar's events.
#import <EventKit/EventKit.h>
// clang-format on
