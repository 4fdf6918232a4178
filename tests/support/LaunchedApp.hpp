#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/AppLifecycle.hpp"
#include "app/ToolCatalog.hpp"
#include "app/ToolRegistry.hpp"
#include "support/FakeAppShell.hpp"
#include "support/FakePlatform.hpp"
#include "support/RecordingTool.hpp"
#include "ui/FirstRunModel.hpp"
#include "ui/MenuModel.hpp"
#include "ui/SettingsWindowModel.hpp"

namespace quorvane {

// The application launched on fakes, with either the real catalog or tools a test adds. The
// tools write their lifecycle calls into the same journal as the fakes.
struct LaunchedApp {
    FakePlatform fakes;
    FakeAppShell shell{fakes.calls};
    std::vector<std::unique_ptr<Tool>> toolsToMake;
    std::unique_ptr<AppLifecycle> app;

    template <typename T = RecordingTool, typename... Args>
    T& add(const std::string& id, Args&&... args) {
        auto tool = std::make_unique<T>(fakes.calls, id, std::forward<Args>(args)...);
        T& made = *tool;
        toolsToMake.push_back(std::move(tool));
        return made;
    }
    void launch(bool withCatalog = false) {
        AppLifecycle::ToolFactory factory =
            withCatalog ? AppLifecycle::ToolFactory(ToolCatalog::makeTools)
                        : [this](const Platform&) { return std::move(toolsToMake); };
        app = std::make_unique<AppLifecycle>(
            fakes.platform(), AppLifecycle::Shell{shell, shell, shell}, std::move(factory));
        app->didFinishLaunching();
    }
    void launchCatalog() { launch(true); }

    ToolRegistry& registry() { return *app->registry(); }
    SettingsWindowModel& settings() { return *app->settings(); }
    MenuModel& menu() { return *app->menu(); }
    FirstRunModel& firstRun() { return *app->firstRun(); }
    Tool& tool(const std::string& id) { return *registry().tool(id); }
};

}  // namespace quorvane
