#pragma once

#include "platform/ProcessFacts.hpp"

namespace quorvane {

// Outside macOS no process owns audio, so nothing here is ever asked for in earnest; names are
// still ordered sensibly (byte order, letters folded to lower case).
class PortableProcessFacts : public ProcessFacts {
public:
    std::optional<std::string> executablePath(int) override { return std::nullopt; }
    std::string processName(int) override { return {}; }
    std::optional<std::string> applicationPath(const std::string&) override { return std::nullopt; }
    std::string displayName(const std::string& path) override { return path; }
    std::optional<std::string> bundleIdentifier(const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> infoString(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    int compareNames(const std::string& a, const std::string& b) override;
};

}  // namespace quorvane
