#include "mac/MacLoginItem.hpp"

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

std::string describe(BOOL succeeded, NSError* error) {
    if (succeeded) {
        return {};
    }
    // unconfirmed: check on a Mac first (NSError's localizedDescription is not in the fact
    // sheet).
    return error ? utf8String(error.localizedDescription) : std::string("unknown error");
}

}  // namespace

LoginItem::Status MacLoginItem::status() const {
    // The raw values match: not registered 0, enabled 1, requires approval 2, not found 3.
    return static_cast<Status>(SMAppService.mainAppService.status);
}

std::string MacLoginItem::registerItem() {
    NSError* error = nil;
    const BOOL registered = [SMAppService.mainAppService registerAndReturnError:&error];
    return describe(registered, error);
}

std::string MacLoginItem::unregisterItem() {
    NSError* error = nil;
    const BOOL unregistered = [SMAppService.mainAppService unregisterAndReturnError:&error];
    return describe(unregistered, error);
}

void MacLoginItem::openLoginItemsSettings() { [SMAppService openSystemSettingsLoginItems]; }

}  // namespace quorvane
