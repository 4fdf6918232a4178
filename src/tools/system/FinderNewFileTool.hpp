#pragma once

#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// "New File" and "Copy Path" in Finder's right-click menu. The menu belongs to Quorvane's
// Finder extension; it sends each choice to the app, which does the work here.
class FinderNewFileTool : public Tool {
public:
    static constexpr const char* kBaseNameKey = "finderNewFile.baseName";
    static constexpr const char* kDefaultBaseName = "untitled";
    static constexpr const char* kExtensionsSettingsURL =
        "x-apple.systempreferences:com.apple.ExtensionsPreferences";

    FinderNewFileTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    const std::string& baseName() const { return baseName_; }
    // A name with "/" or a leading "." is refused, with lastError set.
    void setBaseName(const std::string& name);
    // Carries out one message of the extension.
    void handle(const std::string& message);

    bool isRunning() const { return subscription_.isActive(); }
    const std::string& lastCreated() const { return lastCreated_; }
    const std::string& lastError() const { return lastError_; }

private:
    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::string baseName_;
    Subscription subscription_;
    std::string lastCreated_;
    std::string lastError_;
};

}  // namespace quorvane
