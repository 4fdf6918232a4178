#pragma once
// The Uniform Type Identifiers framework's UTType, as far as the macOS layer uses it. Written
// from Apple's documentation (developer.apple.com/documentation/uniformtypeidentifiers/uttype);
// looked up: typeWithIdentifier:, identifier, UTTypeFolder.
#ifdef __OBJC__
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@interface UTType : NSObject <NSCopying>
+ (nullable instancetype)typeWithIdentifier:(NSString*)identifier;
@property(readonly, copy) NSString* identifier;
@end

extern UTType* const UTTypeFolder;

NS_ASSUME_NONNULL_END
#endif
