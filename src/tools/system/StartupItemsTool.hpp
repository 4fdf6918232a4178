#pragma once

#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "tools/system/StartupItem.hpp"

namespace quorvane {

// What starts by itself at login: the user's launch agents with a switch each, and the
// computer's agents and daemons shown for what they are.
class StartupItemsTool : public Tool {
public:
    StartupItemsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool needsSetup() const override { return descriptor_.settingsOnly; }
    bool opensSettingsWhenTurnedOn() const override { return descriptor_.settingsOnly; }
    void start() override { reload(); }
    // Turning the tool off switches every item it switched off back on.
    void stop() override;
    void refresh() override {}
    void tidy() override;
    SettingsPage settingsPage() override;

    void reload();
    // By label; false with lastError set when it could not be switched.
    bool setEnabled(const std::string& label, bool enabled);

    const std::vector<StartupItem>& items() const { return items_; }
    const std::string& lastError() const { return lastError_; }

private:
    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::vector<StartupItem> items_;
    std::string lastError_;
};

}  // namespace quorvane
