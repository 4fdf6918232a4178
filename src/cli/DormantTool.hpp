#pragma once

#include <memory>

#include "app/Tool.hpp"
#include "tools/system/PreferenceFlipTool.hpp"

namespace quorvane {

// A tool as the command line sees it: everything it says about itself, none of what it does.
// The command only records the user's choices; the running application starts, stops and
// tidies tools, so switching one tool here never runs another tool's clean-up in this process.
// The exception are the tools that only change other programs' preferences: their change lasts
// without Quorvane running, so the command carries it out itself (a running app then finds it
// already made and changes nothing).
class DormantTool : public Tool {
public:
    explicit DormantTool(std::unique_ptr<Tool> tool) : tool_(std::move(tool)) {}

    const ToolIdentity& identity() const override { return tool_->identity(); }
    bool isEnabledByDefault() const override { return tool_->isEnabledByDefault(); }
    bool needsSetup() const override { return tool_->needsSetup(); }
    bool opensSettingsWhenTurnedOn() const override { return tool_->opensSettingsWhenTurnedOn(); }
    bool isAvailable() const override { return tool_->isAvailable(); }
    void start() override {
        if (flipTool() != nullptr) {
            tool_->start();
        }
    }
    void stop() override {
        if (flipTool() != nullptr) {
            tool_->stop();
        }
    }
    void refresh() override {}
    void tidy() override {
        if (flipTool() != nullptr) {
            tool_->tidy();
        }
    }
    SettingsPage settingsPage() override { return tool_->settingsPage(); }
    std::optional<ToolControl> control() override { return tool_->control(); }

    // The tool when it is one the command carries out; nullptr otherwise.
    const PreferenceFlipTool* flipTool() const {
        return dynamic_cast<const PreferenceFlipTool*>(tool_.get());
    }

private:
    std::unique_ptr<Tool> tool_;
};

}  // namespace quorvane
