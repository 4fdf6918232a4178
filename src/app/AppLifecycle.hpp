#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "app/Tool.hpp"
#include "base/Subscription.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"

namespace quorvane {

class AppInstance;
class AppWindows;
class FirstRunModel;
class LaunchAtLogin;
class LoginItem;
class MenuBarPanel;
class MenuModel;
class PermissionCardActions;
class PermissionCenter;
class SettingsWindowModel;
class ToolRegistry;

// The running application from launch to quit: builds everything in the order that lets each
// part rely on the ones before it, wires the callbacks between them, and stops the tools at
// quit. The application delegate only forwards its two events here.
class AppLifecycle {
public:
    using ToolFactory = std::function<std::vector<std::unique_ptr<Tool>>(const Platform&)>;
    static constexpr const char* kMenuImage = "switch.2";
    static constexpr const char* kMenuDescription = "Quorvane";
    static constexpr Seconds kPredecessorPoll{0.1};
    static constexpr Seconds kPredecessorPatience{10.0};

    // What the application itself offers besides the tools' ports.
    struct Shell {
        AppWindows& windows;
        AppInstance& instance;
        LoginItem& loginItem;
    };

    AppLifecycle(const Platform& platform, Shell shell, ToolFactory makeTools);
    ~AppLifecycle();
    AppLifecycle(const AppLifecycle&) = delete;
    AppLifecycle& operator=(const AppLifecycle&) = delete;

    // After a restart, waiting until the replaced instance has quit (so there is never a
    // moment with two status items or two owners of one hot key), at most kPredecessorPatience:
    // the permission centre, the tools, the registry with its two callbacks, the first
    // reconcile; then the menu-bar item, and the welcome on a first launch.
    void didFinishLaunching();
    // Stops every running tool, in registry order.
    void willTerminate();

    void showSettings();
    // A tool that needs setting up opens its page.
    void showTool(const Tool& tool);
    void quit();

    // Nothing before launch.
    PermissionCenter* permissions() const { return permissions_.get(); }
    ToolRegistry* registry() const { return registry_.get(); }
    SettingsWindowModel* settings() const { return settings_.get(); }
    MenuModel* menu() const { return menu_.get(); }
    FirstRunModel* firstRun() const { return firstRun_.get(); }
    MenuBarPanel* menuPanel() const { return menuPanel_.get(); }

private:
    void start();

    Platform platform_;
    Shell shell_;
    ToolFactory makeTools_;
    Timer waitForPredecessor_;
    // Declared in construction order, so each is destroyed before what it refers to.
    std::unique_ptr<PermissionCenter> permissions_;
    std::unique_ptr<ToolRegistry> registry_;
    // The command line's word that the preferences changed.
    Subscription preferencesChanged_;
    std::unique_ptr<PermissionCardActions> cardActions_;
    std::unique_ptr<LaunchAtLogin> launchAtLogin_;
    std::unique_ptr<SettingsWindowModel> settings_;
    std::unique_ptr<MenuModel> menu_;
    std::unique_ptr<FirstRunModel> firstRun_;
    std::unique_ptr<MenuBarPanel> menuPanel_;
};

}  // namespace quorvane
