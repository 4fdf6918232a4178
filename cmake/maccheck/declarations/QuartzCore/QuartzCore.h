#pragma once
// The Core Animation layer properties the macOS layer sets on views' layers. Written from
// Apple's documentation (developer.apple.com/documentation/quartzcore/calayer/<name>).
#ifdef __OBJC__
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphics.h>

typedef NSString* CALayerCornerCurve;
extern CALayerCornerCurve const kCACornerCurveCircular;
extern CALayerCornerCurve const kCACornerCurveContinuous;

@interface CALayer : NSObject
@property CGFloat cornerRadius;
@property(copy) CALayerCornerCurve cornerCurve;
@property BOOL masksToBounds;
@property CGFloat borderWidth;
@property(nullable) CGColorRef borderColor;
@property(nullable) CGColorRef backgroundColor;
@property float opacity;
@end
#endif
