#pragma once
// On a Mac, Foundation's NSPoint, NSSize and NSRect are the same types as Core Graphics'
// CGPoint, CGSize and CGRect. GNUstep declares its own structs, so Core Graphics' names are
// made aliases of them here, which keeps mixed use type-checked as it is on a Mac.
#import <Foundation/NSGeometry.h>

typedef NSPoint CGPoint;
typedef NSSize CGSize;
typedef NSRect CGRect;
