#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/EventTap.hpp"
#include "platform/Platform.hpp"
#include "tools/keyboard/HomeEndEngine.hpp"

namespace quorvane {

// Home and End as on a Windows PC, in every app: the tool's tap hands each Home or End key to
// the engine and posts the arrow press it answers, tagged so that Quorvane's taps (this one
// included) let it pass. Apps where Home and End already mean something to the user keep them.
class HomeEndTool : public Tool {
public:
    static constexpr const char* kExceptionsKey = "homeEnd.exceptions";

    struct KnownApp {
        std::string_view bundleID;
        std::string_view name;
    };
    // Terminals send Home and End on to the shell or the program running in them, and remote
    // desktops and virtual machines to the other system; ⌘← means nothing useful to either.
    static const std::vector<KnownApp>& alwaysLeftAlone();

    HomeEndTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isRunning() const { return tap_ != nullptr; }
    // The apps the user added to leave alone, besides the fixed ones.
    const std::vector<std::string>& exceptions() const { return exceptions_; }
    void addException(const std::string& bundleID);
    void removeException(const std::string& bundleID);
    bool leavesAlone(const std::string& bundleID) const;

private:
    bool handle(EventType type, Event& event);
    void post(const HomeEndEngine::Press& press);
    void saveExceptions();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    HomeEndEngine engine_;
    std::vector<std::string> exceptions_;
    // Kept from the activation notices, so a key press asks the system nothing.
    std::string frontBundleID_;
    std::unique_ptr<EventTap> tap_;
    Subscription activation_;
};

}  // namespace quorvane
