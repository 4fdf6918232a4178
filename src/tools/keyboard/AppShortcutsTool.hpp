#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// A global shortcut per chosen app that opens it, brings it to the front, or hides it when it
// is already there.
class AppShortcutsTool : public Tool {
public:
    // The chosen apps' bundle ids, in the user's order.
    static constexpr const char* kAppsKey = "appShortcuts.apps";
    // Each app's shortcut is kept under this prefix followed by its bundle id.
    static constexpr const char* kShortcutKeyPrefix = "appShortcuts.shortcut.";

    AppShortcutsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return running_; }
    std::vector<std::string> apps() const;
    void addApp(const std::string& bundleID);
    void removeApp(const std::string& bundleID);
    // The shortcut setting of a chosen app; nullptr for others.
    ShortcutSetting* shortcut(const std::string& bundleID);
    const std::string& lastError() const { return lastError_; }

private:
    struct Entry {
        std::string bundleID;
        std::unique_ptr<ShortcutSetting> shortcut;
    };

    std::unique_ptr<ShortcutSetting> makeShortcut(const std::string& bundleID);
    void pressed(const std::string& bundleID);
    void saveApps();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::vector<Entry> entries_;
    bool running_ = false;
    std::string lastError_;
};

}  // namespace quorvane
