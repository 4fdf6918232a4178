#pragma once

#include "platform/ProcessFacts.hpp"

namespace quorvane {

// libproc for processes; NSWorkspace, NSFileManager and NSBundle for applications.
class MacProcessFacts final : public ProcessFacts {
public:
    std::optional<std::string> executablePath(int pid) override;
    std::string processName(int pid) override;
    std::optional<std::string> applicationPath(const std::string& bundleID) override;
    std::string displayName(const std::string& path) override;
    std::optional<std::string> bundleIdentifier(const std::string& bundlePath) override;
    std::optional<std::string> infoString(const std::string& bundleURL,
                                          const std::string& key) override;
    int compareNames(const std::string& a, const std::string& b) override;
};

}  // namespace quorvane
