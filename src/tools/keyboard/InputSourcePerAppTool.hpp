#pragma once

#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/Platform.hpp"
#include "platform/RunningApplication.hpp"
#include "tools/keyboard/InputSourceMemory.hpp"

namespace quorvane {

// Each app keeps its own keyboard language: when an app comes to the front, the input source
// last used in it is selected again; a change of input source is learnt for the app in front.
class InputSourcePerAppTool : public Tool {
public:
    // A dictionary of bundle id to input source id.
    static constexpr const char* kSourcesKey = "inputSourcePerApp.sources";
    // The source an app seen for the first time gets; empty keeps the one in use.
    static constexpr const char* kNewAppSourceKey = "inputSourcePerApp.newAppSource";

    InputSourcePerAppTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return running_; }
    const InputSourceMemory& memory() const { return memory_; }
    const std::string& newAppSource() const { return newAppSource_; }
    void setNewAppSource(const std::string& sourceID);
    void forget(const std::string& bundleID);
    const std::string& lastError() const { return lastError_; }

private:
    void activated(const RunningApplication& app);
    void sourceChanged();
    void save();
    std::string sourceName(const std::string& id);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    InputSourceMemory memory_;
    // A stored list that cannot be read is left as it is, never replaced by what is learnt.
    bool storeUnreadable_ = false;
    std::string newAppSource_;
    std::string frontBundleID_;
    Subscription activations_;
    Subscription sourceChanges_;
    bool running_ = false;
    std::string lastError_;
};

}  // namespace quorvane
