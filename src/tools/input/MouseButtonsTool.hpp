#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "tools/input/SideButtonEngine.hpp"

namespace quorvane {

// The side buttons of a mouse go back and forward: a press of button 4 or 5 types ⌘[ or ⌘],
// the shortcut browsers, Finder and most document apps use. Apps the user excepts get the
// buttons untouched.
class MouseButtonsTool : public Tool {
public:
    static constexpr const char* kExceptionsKey = "mouseButtons.exceptions";
    // Where "[" and "]" sit on a US keyboard, for layouts that type neither without a modifier.
    static constexpr std::uint16_t kANSILeftBracket = 33;
    static constexpr std::uint16_t kANSIRightBracket = 30;

    MouseButtonsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    const std::vector<std::string>& exceptions() const { return exceptions_; }
    void addException(const std::string& bundleID);
    void removeException(const std::string& bundleID);
    bool isRunning() const { return tap_ != nullptr; }

private:
    bool handle(EventType type, Event& event);
    bool isExcepted(const std::string& bundleID) const;

    const ToolDescriptor& descriptor_;
    Platform platform_;
    SideButtonEngine engine_;
    std::vector<std::string> exceptions_;
    std::unique_ptr<EventTap> tap_;
    Subscription activationToken_;
    std::string frontBundleID_;
    std::uint16_t backKey_ = kANSILeftBracket;
    std::uint16_t forwardKey_ = kANSIRightBracket;
};

}  // namespace quorvane
