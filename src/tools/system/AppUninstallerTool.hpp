#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "tools/system/AppIdentity.hpp"
#include "tools/system/LeftoverScan.hpp"

namespace quorvane {

// Removes an app with what it left in the Library folders: the app is named (dragged in, or
// typed as a path or bundle identifier), its leftovers listed with sizes, and only then is
// the list moved to the Trash.
class AppUninstallerTool : public Tool {
public:
    AppUninstallerTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool needsSetup() const override { return descriptor_.settingsOnly; }
    bool opensSettingsWhenTurnedOn() const override { return descriptor_.settingsOnly; }
    void start() override {}
    void stop() override;
    void refresh() override {}
    SettingsPage settingsPage() override;

    // Names the app and lists what would go: its bundle first, then its leftovers.
    void choose(const std::string& app);
    void keep(std::size_t index);
    void moveToTrash();

    const std::string& chosen() const { return chosen_; }
    const std::vector<LeftoverScan::Item>& items() const { return items_; }
    const std::string& lastError() const { return lastError_; }

private:
    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::string chosen_;
    std::vector<LeftoverScan::Item> items_;
    std::string lastError_;
};

}  // namespace quorvane
