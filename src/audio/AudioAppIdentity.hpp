#pragma once

#include <optional>
#include <string>

namespace quorvane {

class ProcessFacts;

// Which application a process belongs to, and how that application is shown.
struct AudioAppIdentity {
    static constexpr const char* kWebKitPrefix = "com.apple.WebKit";
    static constexpr const char* kWebViewsName = "Safari & Web Views";
    static constexpr const char* kSafariBundleID = "com.apple.Safari";

    std::string id;
    std::string name;
    std::optional<std::string> bundleURL;

    // The first rule that applies: web content joins one entry for all web views; a process
    // inside an application bundle belongs to the outermost such bundle; a known bundle
    // identifier names its application; otherwise the process's own name, or its pid.
    static AudioAppIdentity of(int pid, const std::string& bundleID, ProcessFacts& facts);
};

}  // namespace quorvane
