#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/system/FinderCutEngine.hpp"

namespace quorvane {

// ⌘X and ⌘V move files in Finder: the tool's tap rewrites the keys as the engine says, so
// Finder does the copying and the moving itself, with its own progress and undo.
class FinderCutTool : public Tool {
public:
    static constexpr const char* kFinderBundleID = "com.apple.finder";
    static constexpr const char* kShowNoticeKey = "finderCut.showNotice";
    // Finder writes the clipboard a moment after it sees ⌘C.
    static constexpr Seconds kLandDelay{0.5};

    FinderCutTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return tap_ != nullptr; }
    bool hasPendingCut() const { return engine_.hasPendingCut(); }
    bool showsNotice() const { return showNotice_; }
    void setShowsNotice(bool on);
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(EventType type, Event& event);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    FinderCutEngine engine_;
    bool showNotice_ = true;
    bool finderInFront_ = false;
    std::unique_ptr<EventTap> tap_;
    Subscription activation_;
    std::optional<Timer> landTask_;
    std::string lastError_;
};

}  // namespace quorvane
