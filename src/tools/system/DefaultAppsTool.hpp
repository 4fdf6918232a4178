#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/DefaultApplications.hpp"
#include "platform/Platform.hpp"
#include "tools/system/DefaultAppChoices.hpp"

namespace quorvane {

// One page to choose the app for each kind of file and link. The handler each kind had before
// Quorvane's first change is kept, and turning the tool off sets it back.
class DefaultAppsTool : public Tool {
public:
    // A dictionary of handler name to the app's path from before the first change ("" when
    // there was none).
    static constexpr const char* kBackupKey = "defaultApps.original";

    DefaultAppsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool needsSetup() const override { return descriptor_.settingsOnly; }
    bool opensSettingsWhenTurnedOn() const override { return descriptor_.settingsOnly; }
    void start() override;
    void stop() override;
    void refresh() override {}
    void tidy() override { restoreAll(); }
    SettingsPage settingsPage() override;

    bool isRunning() const { return running_; }
    // The app that opens the kind now (its first handler's).
    std::optional<std::string> current(const std::string& kindKey);
    void choose(const std::string& kindKey, const std::string& applicationPath);
    const DefaultAppBackup& backup() const { return backup_; }
    const std::string& lastError() const { return lastError_; }

private:
    std::optional<std::string> handlerNow(const std::string& handler);
    void setHandler(const std::string& handler, const std::string& applicationPath,
                    DefaultApplications::Completion completion);
    void restoreAll();
    void saveBackup();
    // Runs `work` only while this tool is alive; the system may answer after it is gone.
    DefaultApplications::Completion guarded(
        std::function<void(const std::string& error)> work) const;

    const ToolDescriptor& descriptor_;
    Platform platform_;
    DefaultAppBackup backup_;
    std::shared_ptr<int> lifetime_ = std::make_shared<int>(0);
    bool running_ = false;
    std::string lastError_;
};

}  // namespace quorvane
