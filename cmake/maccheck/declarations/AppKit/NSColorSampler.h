#pragma once
// NSColorSampler, which GNUstep's AppKit lacks, written from Apple's documentation
// (developer.apple.com/documentation/appkit/nscolorsampler, show(selectionHandler:)).
#import <AppKit/NSColor.h>
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

__attribute__((availability(macos, introduced = 10.15)))
@interface NSColorSampler : NSObject
- (void)showSamplerWithSelectionHandler:
    (void (^)(NSColor* _Nullable selectedColor))selectionHandler;
@end

NS_ASSUME_NONNULL_END
