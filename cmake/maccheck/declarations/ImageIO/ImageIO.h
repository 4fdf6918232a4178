#pragma once
// Image I/O's image sources and thumbnails. Written from Apple's documentation
// (developer.apple.com/documentation/imageio/<name>); looked up:
// CGImageSourceCreateThumbnailAtIndex, kCGImageSourceThumbnailMaxPixelSize.
#include <CoreGraphics/CoreGraphics.h>

#ifdef __cplusplus
extern "C" {
#endif
#pragma clang arc_cf_code_audited begin
typedef struct __attribute__((objc_bridge(id))) CGImageSource* CGImageSourceRef;
CGImageSourceRef _Nullable CGImageSourceCreateWithURL(CFURLRef _Nonnull url,
                                                      CFDictionaryRef _Nullable options);
CGImageSourceRef _Nullable CGImageSourceCreateWithData(CFDataRef _Nonnull data,
                                                       CFDictionaryRef _Nullable options);
size_t CGImageSourceGetCount(CGImageSourceRef _Nonnull isrc);
CGImageRef _Nullable CGImageSourceCreateImageAtIndex(CGImageSourceRef _Nonnull isrc, size_t index,
                                                     CFDictionaryRef _Nullable options);
CGImageRef _Nullable CGImageSourceCreateThumbnailAtIndex(CGImageSourceRef _Nonnull isrc,
                                                         size_t index,
                                                         CFDictionaryRef _Nullable options);
extern const CFStringRef _Nonnull kCGImageSourceShouldCache;
extern const CFStringRef _Nonnull kCGImageSourceShouldCacheImmediately;
extern const CFStringRef _Nonnull kCGImageSourceCreateThumbnailFromImageIfAbsent;
extern const CFStringRef _Nonnull kCGImageSourceCreateThumbnailFromImageAlways;
extern const CFStringRef _Nonnull kCGImageSourceThumbnailMaxPixelSize;
extern const CFStringRef _Nonnull kCGImageSourceCreateThumbnailWithTransform;
#pragma clang arc_cf_code_audited end
#ifdef __cplusplus
}
#endif
