#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "tools/system/PreferenceFlipTable.hpp"

namespace quorvane {

// A tool whose whole effect is a change to other programs' preferences (the Dock's, Finder's,
// the global domain), declared as a PreferenceFlipTable. Start writes each wanted value through
// SystemPreference, which keeps the user's own value; stop puts every owned key back exactly,
// "absent" included. Tidy does the same for a tool that is off, which is how a change left in
// force by a crash is undone on the next launch. The processes that read the keys are restarted
// only when something actually changed.
class PreferenceFlipTool : public Tool {
public:
    PreferenceFlipTool(const ToolDescriptor& descriptor, const Platform& platform,
                       const PreferenceFlipTable& table);
    // For the catalog's factory tables: the table is found by the descriptor's id.
    static std::unique_ptr<Tool> build(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    bool needsSetup() const override { return descriptor_.settingsOnly; }
    bool opensSettingsWhenTurnedOn() const override { return descriptor_.settingsOnly; }
    void start() override;
    void stop() override;
    void refresh() override {
        if (!descriptor_.refreshDoesNothing) {
            stop();
        }
    }
    void tidy() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return running_; }
    // Why the last change could not be made; empty when it could.
    const std::string& lastError() const { return lastError_; }
    const PreferenceFlipTable& table() const { return table_; }

protected:
    // The keys and the values wanted now. The table's by default; tools with settings of their
    // own compute the values from them.
    virtual std::vector<PreferenceFlip> wantedFlips() const { return table_.flips; }
    // Rows of the tool's own settings, shown above what the tool changes.
    virtual void addSettings(SettingsPage&) {}
    // Writes the wanted values again after one of the tool's settings changed, if it is on.
    void settingsChanged();

    const ToolDescriptor& descriptor_;
    Platform platform_;

private:
    void apply();
    void restoreAll();
    void restartIfChanged(bool changed);
    std::string describe(const PreferenceFlip& flip) const;

    const PreferenceFlipTable& table_;
    bool running_ = false;
    std::string lastError_;
};

}  // namespace quorvane
