#pragma once

#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "tools/system/SpaceScan.hpp"

namespace quorvane {

// Finds caches, logs and old developer files and moves the ones the user keeps on the list
// to the Trash. Nothing is touched before the list has been shown.
class FreeUpSpaceTool : public Tool {
public:
    FreeUpSpaceTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool needsSetup() const override { return descriptor_.settingsOnly; }
    bool opensSettingsWhenTurnedOn() const override { return descriptor_.settingsOnly; }
    void start() override {}
    void stop() override;
    void refresh() override {}
    SettingsPage settingsPage() override;

    void scan();
    // Takes an item off the list, so it stays where it is.
    void keep(std::size_t index);
    // Moves every listed item to the Trash, except what is in the Trash already.
    void moveToTrash();

    const std::vector<SpaceScan::Item>& items() const { return items_; }
    bool hasScanned() const { return scanned_; }
    const std::string& lastError() const { return lastError_; }

private:
    std::vector<std::string> lines() const;

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::vector<SpaceScan::Item> items_;
    bool scanned_ = false;
    std::string lastError_;
};

}  // namespace quorvane
