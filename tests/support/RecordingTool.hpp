#pragma once

#include <string>
#include <vector>

#include "app/Tool.hpp"

namespace quorvane {

// A tool that writes each lifecycle call into a shared journal ("start:id", "stop:id",
// "tidy:id"), so a test can check both what ran and in which order across tools.
class RecordingTool : public Tool {
public:
    RecordingTool(std::vector<std::string>& journal, std::string id,
                  std::vector<Permission> permissions = {}, std::vector<std::string> keywords = {})
        : journal_(journal) {
        identity_.id = id;
        identity_.name = id;
        identity_.summary = "A tool for tests.";
        identity_.systemImage = "gear";
        identity_.keywords = std::move(keywords);
        identity_.requiredPermissions = std::move(permissions);
    }

    const ToolIdentity& identity() const override { return identity_; }
    ToolIdentity& mutableIdentity() { return identity_; }
    bool needsSetup() const override { return setupNeeded; }
    bool opensSettingsWhenTurnedOn() const override { return opensSettings; }
    bool isAvailable() const override { return available; }
    void start() override { journal_.push_back("start:" + identity_.id); }
    void stop() override { journal_.push_back("stop:" + identity_.id); }
    void tidy() override { journal_.push_back("tidy:" + identity_.id); }
    SettingsPage settingsPage() override { return page; }
    std::optional<ToolControl> control() override {
        return hasControl ? std::optional(ToolControl{identity_.name, "gear", {}, {}})
                          : std::nullopt;
    }

    bool setupNeeded = false;
    bool opensSettings = false;
    bool available = true;
    bool hasControl = false;
    SettingsPage page;

private:
    std::vector<std::string>& journal_;
    ToolIdentity identity_;
};

}  // namespace quorvane
