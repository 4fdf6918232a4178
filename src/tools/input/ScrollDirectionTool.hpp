#pragma once

#include <memory>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "tools/input/ScrollReversal.hpp"

namespace quorvane {

// macOS has one natural-scrolling switch for the trackpad and the mouse. This tool turns the
// scrolling of one of them around on top of it, usually the wheel, so a trackpad can stay
// natural while the wheel goes the classic way. Its tap tells the devices apart by the events.
class ScrollDirectionTool : public Tool {
public:
    ScrollDirectionTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    const ScrollReversal& reversal() const { return reversal_; }
    void setReverseMouse(bool on);
    void setReverseTrackpad(bool on);
    bool isRunning() const { return tap_ != nullptr; }

private:
    bool handle(Event& event);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ScrollReversal reversal_;
    std::unique_ptr<EventTap> tap_;
};

}  // namespace quorvane
