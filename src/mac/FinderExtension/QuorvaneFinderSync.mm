// Quorvane's Finder extension: "New File" and "Copy Path" in Finder's right-click menu. It runs
// sandboxed inside Finder's reach, so it writes nothing itself: each choice goes to the app as
// one distributed notification whose object is the request (a sandboxed sender may not attach
// a dictionary), and the app's finder-new-file tool carries it out.

#include <string>

#include "mac/FinderExtension/FinderSyncFrameworks.h"
#include "mac/MacStrings.hpp"
#include "platform/FinderExtensionChannel.hpp"
#include "tools/system/FinderRequest.hpp"

namespace {

void send(const quorvane::FinderRequest& request) {
    // unconfirmed: check on a Mac first (-postNotificationName:object:userInfo:
    // deliverImmediately: is written from Apple's reference, which says a sandboxed sender's
    // userInfo must be nil).
    [[NSDistributedNotificationCenter defaultCenter]
        postNotificationName:quorvane::makeNSString(
                                 quorvane::FinderExtensionChannel::kNotificationName)
                      object:quorvane::makeNSString(request.encode())
                    userInfo:nil
          deliverImmediately:YES];
}

// The folder a new file goes into: the window's folder for its background, a clicked folder
// itself, or the folder holding a clicked file.
std::string targetFolder() {
    NSURL* target = [[FIFinderSyncController defaultController] targetedURL];
    if (!target) {
        return {};
    }
    NSNumber* isFolder = nil;
    // unconfirmed: check on a Mac first (getResourceValue:forKey:error: and
    // NSURLIsDirectoryKey are written from Apple's reference).
    [target getResourceValue:&isFolder forKey:NSURLIsDirectoryKey error:nil];
    NSURL* folder = isFolder.boolValue ? target : [target URLByDeletingLastPathComponent];
    return quorvane::utf8String(folder.path);
}

}  // namespace

@interface QuorvaneFinderSync : FIFinderSync
@end

@implementation QuorvaneFinderSync

- (instancetype)init {
    if ((self = [super init])) {
        // Every folder: the menu is wanted wherever the user right-clicks.
        // unconfirmed: check on a Mac first that the root folder covers every volume.
        [FIFinderSyncController defaultController].directoryURLs =
            [NSSet setWithObject:[NSURL fileURLWithPath:@"/"]];
    }
    return self;
}

- (NSMenu*)menuForMenuKind:(FIMenuKind)kind {
    if (kind != FIMenuKindContextualMenuForContainer && kind != FIMenuKindContextualMenuForItems) {
        return nil;
    }
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    [menu addItemWithTitle:@"New Text File" action:@selector(newTextFile:) keyEquivalent:@""];
    [menu addItemWithTitle:@"New Markdown File"
                    action:@selector(newMarkdownFile:)
             keyEquivalent:@""];
    [menu addItemWithTitle:@"New Empty File" action:@selector(newEmptyFile:) keyEquivalent:@""];
    [menu addItemWithTitle:@"Copy Path" action:@selector(copyPath:) keyEquivalent:@""];
    return menu;
}

- (void)newFileOfKind:(const char*)kind {
    quorvane::FinderRequest request;
    request.action = quorvane::FinderRequest::Action::newFile;
    request.folder = targetFolder();
    request.kind = kind;
    if (!request.folder.empty()) {
        send(request);
    }
}

- (IBAction)newTextFile:(id)sender {
    (void)sender;
    [self newFileOfKind:"txt"];
}

- (IBAction)newMarkdownFile:(id)sender {
    (void)sender;
    [self newFileOfKind:"md"];
}

- (IBAction)newEmptyFile:(id)sender {
    (void)sender;
    [self newFileOfKind:""];
}

- (IBAction)copyPath:(id)sender {
    (void)sender;
    quorvane::FinderRequest request;
    request.action = quorvane::FinderRequest::Action::copyPath;
    FIFinderSyncController* controller = [FIFinderSyncController defaultController];
    for (NSURL* url in [controller selectedItemURLs]) {
        request.items.push_back(quorvane::utf8String(url.path));
    }
    // The window's background: its own folder.
    if (request.items.empty()) {
        if (NSURL* target = [controller targetedURL]) {
            request.items.push_back(quorvane::utf8String(target.path));
        }
    }
    if (!request.items.empty()) {
        send(request);
    }
}

@end
