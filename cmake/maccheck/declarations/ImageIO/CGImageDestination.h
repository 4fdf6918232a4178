#pragma once
// Image I/O's image destinations, written from Apple's documentation
// (developer.apple.com/documentation/imageio/<name>). Looked up:
// CGImageDestinationCreateWithURL, CGImageDestinationAddImage, CGImageDestinationFinalize.
#include <CoreGraphics/CoreGraphics.h>

#ifdef __cplusplus
extern "C" {
#endif
#pragma clang arc_cf_code_audited begin
typedef struct __attribute__((objc_bridge(id))) CGImageDestination* CGImageDestinationRef;
CGImageDestinationRef _Nullable CGImageDestinationCreateWithURL(CFURLRef _Nonnull url,
                                                                CFStringRef _Nonnull type,
                                                                size_t count,
                                                                CFDictionaryRef _Nullable options);
void CGImageDestinationAddImage(CGImageDestinationRef _Nonnull idst, CGImageRef _Nonnull image,
                                CFDictionaryRef _Nullable properties);
bool CGImageDestinationFinalize(CGImageDestinationRef _Nonnull idst);
#pragma clang arc_cf_code_audited end
#ifdef __cplusplus
}
#endif
