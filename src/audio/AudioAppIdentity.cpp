#include "audio/AudioAppIdentity.hpp"

#include "platform/ProcessFacts.hpp"

namespace quorvane {

namespace {

// The path up to and including its first component that ends in ".app", scanning from the
// root, so a helper inside an outer application's bundle belongs to the outer application.
std::optional<std::string> outerBundlePath(const std::string& path) {
    constexpr std::string_view kSuffix = ".app";
    std::size_t start = 0;
    while (start <= path.size()) {
        std::size_t end = path.find('/', start);
        if (end == std::string::npos) {
            end = path.size();
        }
        const std::string_view component(path.data() + start, end - start);
        if (component.size() > kSuffix.size() && component.ends_with(kSuffix)) {
            return path.substr(0, end);
        }
        start = end + 1;
    }
    return std::nullopt;
}

}  // namespace

AudioAppIdentity AudioAppIdentity::of(int pid, const std::string& bundleID, ProcessFacts& facts) {
    if (bundleID.starts_with(kWebKitPrefix)) {
        return {kWebKitPrefix, kWebViewsName, facts.applicationPath(kSafariBundleID)};
    }
    if (const auto executable = facts.executablePath(pid)) {
        if (auto bundle = outerBundlePath(*executable)) {
            return {facts.bundleIdentifier(*bundle).value_or(*bundle), facts.displayName(*bundle),
                    bundle};
        }
    }
    if (!bundleID.empty()) {
        if (auto application = facts.applicationPath(bundleID)) {
            return {bundleID, facts.displayName(*application), application};
        }
    }
    const std::string processName = facts.processName(pid);
    if (!bundleID.empty()) {
        return {bundleID, processName.empty() ? bundleID : processName, std::nullopt};
    }
    return {"pid:" + std::to_string(pid),
            processName.empty() ? "Process " + std::to_string(pid) : processName, std::nullopt};
}

}  // namespace quorvane
