#pragma once

#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// Opens RAR, 7z and other archives by double-click: each is extracted into a new folder
// beside it, named after it. The app declares the document types; while this tool is off,
// archives handed to the app are left alone.
class ArchivesTool : public Tool {
public:
    static constexpr std::size_t kRecentCount = 10;
    static constexpr const char* kOff = "Turn on Open RAR & 7z Files to extract archives.";

    ArchivesTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool isAvailable() const override;
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    // The app was asked to open an archive. Answers the folder it was extracted into; empty,
    // with lastError set, when it was not.
    std::string open(const std::string& archive);

    bool isRunning() const { return running_; }
    const std::vector<std::string>& recent() const { return recent_; }
    const std::string& lastError() const { return lastError_; }

private:
    const ToolDescriptor& descriptor_;
    Platform platform_;
    bool running_ = false;
    std::string typed_;
    std::vector<std::string> recent_;
    std::string lastError_;
};

}  // namespace quorvane
