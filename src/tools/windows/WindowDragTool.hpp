#pragma once

#include <memory>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/WindowDragEngine.hpp"

namespace quorvane {

// Move a window by holding the modifiers and dragging anywhere inside it; resize it with the
// right button (or with ⇧ added). The decisions are the engine's; this tool owns the tap and the
// window, and carries the engine's placements out.
class WindowDragTool : public Tool {
public:
    static constexpr const char* kKeysKey = "windowDrag.keys";
    static constexpr const char* kBringToFrontKey = "windowDrag.bringToFront";

    WindowDragTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    WindowDragEngine::Keys keys() const { return engine_.keys(); }
    void setKeys(WindowDragEngine::Keys keys);
    bool bringsToFront() const { return bringsToFront_; }
    void setBringsToFront(bool on);
    bool isRunning() const { return tap_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(EventType type, Event& event);
    void bringForward();
    void place(const WindowDragEngine::Placement& placement);
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    AccessibleWindows windows_;
    WindowDragEngine engine_;
    bool bringsToFront_ = true;
    std::unique_ptr<EventTap> tap_;
    // The window being dragged; set when the engine asks what lies under the mouse.
    Element window_;
    std::string lastError_;
};

}  // namespace quorvane
