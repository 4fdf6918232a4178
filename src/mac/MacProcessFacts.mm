#include "mac/MacPorts.hpp"

#include <cstdint>
#include <cstring>

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// libproc for processes; NSWorkspace, NSFileManager and NSBundle for applications.
class MacProcessFacts final : public ProcessFacts {
public:
    std::optional<std::string> executablePath(int pid) override {
        char buffer[PROC_PIDPATHINFO_MAXSIZE];
        const int length = proc_pidpath(pid, buffer, static_cast<std::uint32_t>(sizeof buffer));
        if (length <= 0) {
            return std::nullopt;
        }
        return std::string(buffer, static_cast<std::size_t>(length));
    }

    std::string processName(int pid) override {
        char buffer[256] = {};
        // unconfirmed: check on a Mac first (proc_name's result is not in the fact sheet; libproc's
        // source answers the name's length, and 0 when there is none).
        if (proc_name(pid, buffer, static_cast<std::uint32_t>(sizeof buffer)) <= 0) {
            return {};
        }
        return std::string(buffer, strnlen(buffer, sizeof buffer));
    }

    std::optional<std::string> applicationPath(const std::string& bundleID) override {
        @autoreleasepool {
            NSString* identifier = makeNSString(bundleID);
            if (!identifier) {
                return std::nullopt;
            }
            NSURL* url =
                [[NSWorkspace sharedWorkspace] URLForApplicationWithBundleIdentifier:identifier];
            // unconfirmed: check on a Mac first (-[NSURL path] is not in the fact sheet).
            return utf8StringIfText(url.path);
        }
    }

    std::string displayName(const std::string& path) override {
        @autoreleasepool {
            NSString* text = makeNSString(path);
            if (!text) {
                return path;
            }
            // unconfirmed: check on a Mac first (-[NSFileManager displayNameAtPath:] is not in the
            // fact sheet; Apple's reference says it answers the path itself when nothing is there).
            return utf8String([[NSFileManager defaultManager] displayNameAtPath:text]);
        }
    }

    std::optional<std::string> bundleIdentifier(const std::string& bundlePath) override {
        @autoreleasepool {
            NSString* path = makeNSString(bundlePath);
            // unconfirmed: check on a Mac first (+[NSBundle bundleWithPath:] and -bundleIdentifier
            // are not in the fact sheet; both may give nil).
            NSBundle* bundle = path ? [NSBundle bundleWithPath:path] : nil;
            return utf8StringIfText(bundle.bundleIdentifier);
        }
    }

    std::optional<std::string> infoString(const std::string& bundleURL,
                                          const std::string& key) override {
        @autoreleasepool {
            NSString* text = makeNSString(bundleURL);
            NSString* name = makeNSString(key);
            if (!text || !name) {
                return std::nullopt;
            }
            // unconfirmed: check on a Mac first (+[NSURL URLWithString:], +[NSBundle
            // bundleWithURL:] and -objectForInfoDictionaryKey: are from Apple's reference, not the
            // fact sheet; each may give nil, and the value may be of any property-list class).
            NSURL* url = [NSURL URLWithString:text];
            NSBundle* bundle = url ? [NSBundle bundleWithURL:url] : nil;
            return utf8StringIfText([bundle objectForInfoDictionaryKey:name]);
        }
    }

    int compareNames(const std::string& a, const std::string& b) override {
        @autoreleasepool {
            NSString* first = makeNSString(a);
            NSString* second = makeNSString(b);
            if (!first || !second) {
                return a.compare(b);
            }
            // unconfirmed: check on a Mac first (-[NSString localizedCaseInsensitiveCompare:] is
            // not in the fact sheet).
            return static_cast<int>([first localizedCaseInsensitiveCompare:second]);
        }
    }
};

}  // namespace

std::unique_ptr<ProcessFacts> makeMacProcessFacts() { return std::make_unique<MacProcessFacts>(); }

}  // namespace quorvane
