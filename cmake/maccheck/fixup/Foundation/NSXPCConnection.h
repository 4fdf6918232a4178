#pragma once
// NSXPCConnection as a Mac declares it: GNUstep's classes, plus the members a Mac has and
// GNUstep lacks or names differently (GNUstep's setter is setExportInterface:). Written from
// Apple's documentation (developer.apple.com/documentation/foundation/nsxpcconnection/<name>);
// looked up: exportedInterface, exportedObject (macOS 10.8), setCodeSigningRequirement:
// (macOS 13).
// clang-format off
#include_next <Foundation/NSXPCConnection.h>
// clang-format on

@interface NSXPCConnection (QVMacAdditions)
@property(nullable, retain) NSXPCInterface* exportedInterface;
@property(nullable, retain) id exportedObject;
- (void)setCodeSigningRequirement:(nonnull NSString*)requirement;
@end
