#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/ChildProcessRun.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// Silences the chime at start-up through the firmware variable, which only an administrator
// may change: turning the tool on or off asks for a password in the system's own window, and
// the page says so first. The value from before the first change is kept (in a record that
// survives a crash) and put back exactly when the tool is turned off. While the password
// window is up the tool waits: the page says so, no second request is made, and turning the
// tool off closes a window that asked to mute.
class MuteStartupSoundTool : public Tool {
public:
    // A dictionary whose "value" holds the variable's bytes from before Quorvane's change; an
    // empty dictionary means it was not set. Present exactly while the change is in force.
    static constexpr const char* kBackupKey = "muteStartupSound.original";

    MuteStartupSoundTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    // The chime stays muted whether or not Quorvane runs; nothing to redo.
    void refresh() override {}
    SettingsPage settingsPage() override;

    bool isRunning() const { return running_; }
    // Whether Quorvane's change is still in force.
    bool hasBackup() const;
    // Puts the user's value back, asking for the password when the variable differs from it.
    // Refused while a request waits for its answer; a failure shows in lastError.
    void restore();
    // Whether a password window is up.
    bool isWaiting() const { return request_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    // Nothing when there is no backup; inside, nothing when the variable was not set.
    std::optional<std::optional<std::string>> backup() const;
    // Asks for the password to give the variable this value; `done` gets whether it was given.
    void requestNvram(const std::optional<std::string>& value, const std::string& reason,
                      std::function<void(bool changed)> done);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    bool running_ = false;
    std::string lastError_;
    std::unique_ptr<ChildProcessRun> request_;
};

}  // namespace quorvane
