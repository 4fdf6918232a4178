#include "mac/MacPorts.hpp"

#include <memory>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacObservation.hpp"
#include "mac/MacStrings.hpp"

// Notes, looked up in Apple's documentation for this file (check on a Mac first, none of it is
// in the shared fact sheet):
// - CGDirectDisplayID "typically remains constant until the machine is restarted"; Quartz
//   derives it from vendor, model, serial number and the position in the I/O Kit registry. It
//   is not stable across restarts, so it cannot key a saved arrangement.
// - CGDisplayCreateUUIDFromDisplayID(uint32_t) -> CFUUIDRef (ColorSync, macOS 10.13+): the
//   display's UUID, which is. Create rule. CFUUIDCreateString(alloc, uuid) -> CFStringRef,
//   Create rule, "68753A44-4D6F-1226-9C60-0050E4C00067" form.
// - NSScreen's deviceDescription holds the display ID under "NSScreenNumber" as an NSNumber.
// - CGDisplayRegisterReconfigurationCallback calls back twice per display (before, with
//   kCGDisplayBeginConfigurationFlag, and after), in the event-processing thread.
//   NSApplicationDidChangeScreenParametersNotification is posted once per change, on the main
//   actor, after AppKit has updated NSScreen, so handlers that read the screens at once see the
//   new ones; that is why it is the one observed here.

namespace quorvane {

namespace {

std::string displayIdentifier(NSScreen* screen) {
    id value = screen.deviceDescription[@"NSScreenNumber"];
    if (![value isKindOfClass:[NSNumber class]]) {
        return {};
    }
    NSNumber* number = value;
    const auto display = static_cast<CGDirectDisplayID>(number.unsignedIntValue);
    const auto uuid = CFRef<CFUUIDRef>::adopt(CGDisplayCreateUUIDFromDisplayID(display));
    const auto text = CFRef<CFStringRef>::adopt(
        uuid ? CFUUIDCreateString(kCFAllocatorDefault, uuid.get()) : nullptr);
    // A display ColorSync does not know: its session-long number is better than nothing.
    return text ? utf8String(text.get()) : "display-" + std::to_string(display);
}

// NSScreen's displays, named by their ColorSync UUIDs, and AppKit's word that they changed.
class MacDisplayConfiguration final : public DisplayConfiguration {
public:
    std::vector<std::string> displayIDs() override {
        @autoreleasepool {
            // The same order as MacScreens::screens(), which also lists [NSScreen screens].
            std::vector<std::string> ids;
            for (NSScreen* screen in [NSScreen screens]) {
                ids.push_back(displayIdentifier(screen));
            }
            return ids;
        }
    }

    [[nodiscard]] Subscription observeReconfiguration(std::function<void()> handler) override {
        @autoreleasepool {
            return observeOnMainQueue(
                [NSNotificationCenter defaultCenter],
                NSApplicationDidChangeScreenParametersNotification, nil,
                [handler = std::move(handler)](NSNotification*) { handler(); });
        }
    }
};

}  // namespace

std::unique_ptr<DisplayConfiguration> makeMacDisplayConfiguration() {
    return std::make_unique<MacDisplayConfiguration>();
}

}  // namespace quorvane
