// Quorvane's Finder extension: "New File" and "Copy Path" in Finder's right-click menu. It runs
// sandboxed inside Finder's reach, so it writes nothing itself: each choice goes to the app as
// one distributed notification whose object is the request (a sandboxed sender may not attach
// a dictionary), and the app's finder-new-file tool carries it out.

#include <cstddef>
#include <iterator>

#include "mac/FinderExtension/FinderSyncFrameworks.h"
#include "mac/MacStrings.hpp"
#include "platform/FinderExtensionChannel.hpp"
#include "tools/system/FinderMenu.hpp"

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

// What was right-clicked, as Finder tells it.
quorvane::FinderMenu::Click click() {
    FIFinderSyncController* controller = [FIFinderSyncController defaultController];
    quorvane::FinderMenu::Click click;
    if (NSURL* target = [controller targetedURL]) {
        NSNumber* isFolder = nil;
        // unconfirmed: check on a Mac first (getResourceValue:forKey:error: and
        // NSURLIsDirectoryKey are written from Apple's reference).
        [target getResourceValue:&isFolder forKey:NSURLIsDirectoryKey error:nil];
        click.target = quorvane::utf8String(target.path);
        click.targetIsFolder = isFolder.boolValue;
    }
    click.selected = quorvane::pathsOf([controller selectedItemURLs]);
    return click;
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
    // Finder copies the items into its own menu and sends their action here with its copy as
    // the sender, which keeps the tag though not a represented object: the tag names the entry.
    // unconfirmed: check on a Mac first (shipped Finder extensions rely on the tag; Apple's
    // reference does not say).
    for (std::size_t index = 0; index < std::size(quorvane::FinderMenu::kEntries); ++index) {
        NSMenuItem* item = [[NSMenuItem alloc]
            initWithTitle:quorvane::makeNSString(
                              quorvane::FinderMenu::title(quorvane::FinderMenu::kEntries[index]))
                   action:@selector(chooseEntry:)
            keyEquivalent:@""];
        item.tag = quorvane::FinderMenu::tagAt(index);
        [menu addItem:item];
    }
    return menu;
}

- (IBAction)chooseEntry:(NSMenuItem*)sender {
    const auto entry = quorvane::FinderMenu::entryForTag(sender.tag);
    if (const auto request =
            entry ? quorvane::FinderMenu::request(*entry, click()) : std::nullopt) {
        send(*request);
    }
}

@end
