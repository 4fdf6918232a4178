#pragma once

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"

namespace quorvane {

// A tool of the catalog whose behaviour this build does not have yet. It says so honestly:
// it is not available, cannot be switched on, and its page explains why.
class PlannedTool : public Tool {
public:
    explicit PlannedTool(const ToolDescriptor& descriptor) : descriptor_(descriptor) {}

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool needsSetup() const override { return descriptor_.settingsOnly; }
    bool opensSettingsWhenTurnedOn() const override { return descriptor_.settingsOnly; }
    bool isAvailable() const override { return false; }

    void start() override {}
    void stop() override {}
    void refresh() override {
        if (!descriptor_.refreshDoesNothing) {
            stop();
        }
    }
    SettingsPage settingsPage() override;

    static constexpr const char* kUnavailableNote =
        "This tool isn't available in this version of Quorvane yet.";

private:
    const ToolDescriptor& descriptor_;
};

}  // namespace quorvane
