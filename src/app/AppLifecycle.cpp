#include "app/AppLifecycle.hpp"

#include "app/LaunchAtLogin.hpp"
#include "app/MenuBarPanel.hpp"
#include "app/PermissionCardActions.hpp"
#include "app/PermissionCenter.hpp"
#include "app/ToolRegistry.hpp"
#include "platform/AppInstance.hpp"
#include "platform/AppWindows.hpp"
#include "platform/Workspace.hpp"
#include "ui/FirstRunModel.hpp"
#include "ui/MenuModel.hpp"
#include "ui/PanelContent.hpp"
#include "ui/SettingsWindowModel.hpp"

namespace quorvane {

AppLifecycle::AppLifecycle(const Platform& platform, Shell shell, ToolFactory makeTools)
    : platform_(platform), shell_(shell), makeTools_(std::move(makeTools)) {}

AppLifecycle::~AppLifecycle() = default;

void AppLifecycle::didFinishLaunching() {
    if (registry_ || waitForPredecessor_) {
        return;
    }
    const auto predecessor = shell_.instance.predecessor();
    if (!predecessor || !shell_.instance.isRunning(*predecessor)) {
        start();
        return;
    }
    const Seconds since = platform_.scheduler.now();
    waitForPredecessor_ =
        platform_.scheduler.every(kPredecessorPoll, [this, since, pid = *predecessor] {
            if (shell_.instance.isRunning(pid) &&
                platform_.scheduler.now() - since < kPredecessorPatience) {
                return;
            }
            waitForPredecessor_.cancel();
            start();
        });
}

void AppLifecycle::start() {
    // The permissions are read once before any tool exists, so the first reconcile already
    // knows what may run.
    permissions_ = std::make_unique<PermissionCenter>(platform_.permissionProbe,
                                                      platform_.scheduler, platform_.workspace);
    registry_ = std::make_unique<ToolRegistry>(makeTools_(platform_), *permissions_,
                                               platform_.preferences, platform_.notifications);
    // The registry never reconciles without its two callbacks, not even the first time.
    registry_->onNeedsSetup = [this](Tool& tool) { showTool(tool); };
    permissions_->onChange = [this] { registry_->reconcile(); };
    registry_->reconcile();
    preferencesChanged_ = platform_.workspace.observeDistributed(
        ToolRegistry::kPreferencesChanged, [this] { registry_->reloadPreferences(); });

    cardActions_ = std::make_unique<PermissionCardActions>(*permissions_, shell_.instance);
    launchAtLogin_ = std::make_unique<LaunchAtLogin>(shell_.loginItem);
    settings_ = std::make_unique<SettingsWindowModel>(*registry_, *cardActions_, *launchAtLogin_);
    menu_ = std::make_unique<MenuModel>(*registry_);
    menu_->onOpenSettings = [this] { showSettings(); };
    menu_->onQuit = [this] { quit(); };
    firstRun_ = std::make_unique<FirstRunModel>(*registry_, *cardActions_, platform_.preferences);
    firstRun_->onFinish = [this] { shell_.windows.closeFirstRun(); };

    menuPanel_ = std::make_unique<MenuBarPanel>(platform_.menuBar, platform_.eventMonitors,
                                                platform_.scheduler, PanelContent{menu_.get()});
    menuPanel_->statusItem().setImage(kMenuImage, kMenuDescription);

    if (FirstRunModel::isNeeded(platform_.preferences)) {
        shell_.windows.showFirstRun(*firstRun_);
    }
}

void AppLifecycle::willTerminate() {
    if (registry_) {
        registry_->stopAll();
    }
}

void AppLifecycle::showSettings() {
    if (!settings_) {
        return;
    }
    if (menuPanel_) {
        menuPanel_->close();
    }
    shell_.windows.showSettings(*settings_);
}

void AppLifecycle::showTool(const Tool& tool) {
    if (!settings_) {
        return;
    }
    settings_->showTool(tool.id());
    showSettings();
}

void AppLifecycle::quit() {
    shell_.instance.terminate();
}

}  // namespace quorvane
