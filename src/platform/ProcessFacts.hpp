#pragma once

#include <optional>
#include <string>

namespace quorvane {

// What the system knows about running processes and installed applications. Paths are file
// system paths in UTF-8; an application's "URL" is the path of its bundle.
class ProcessFacts {
public:
    virtual ~ProcessFacts() = default;

    // proc_pidpath: the executable's full path; nothing when it cannot be found.
    virtual std::optional<std::string> executablePath(int pid) = 0;
    // proc_name: the short process name; empty when there is none.
    virtual std::string processName(int pid) = 0;
    // NSWorkspace's application for a bundle identifier, as the bundle's path.
    virtual std::optional<std::string> applicationPath(const std::string& bundleID) = 0;
    // NSFileManager's display name of a path ("Safari" for /Applications/Safari.app).
    virtual std::string displayName(const std::string& path) = 0;
    // The identifier of the bundle at a path; nothing when it is not a bundle or has none.
    virtual std::optional<std::string> bundleIdentifier(const std::string& bundlePath) = 0;
    // A string of the Info.plist of the application bundle at a file URL (as a running
    // application's bundleURL gives it); nothing when the bundle or the string is missing.
    virtual std::optional<std::string> infoString(const std::string& bundleURL,
                                                  const std::string& key) = 0;
    // Orders names for people the way the system's lists do (localized, case-insensitive):
    // negative, zero or positive.
    virtual int compareNames(const std::string& a, const std::string& b) = 0;
};

}  // namespace quorvane
