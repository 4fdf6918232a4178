#pragma once

#include <memory>

#include "platform/AppWindows.hpp"

namespace quorvane {

// The settings and welcome windows, each made on first use. Main thread only.
class MacAppWindows final : public AppWindows {
public:
    MacAppWindows();
    ~MacAppWindows() override;

    void showSettings(SettingsWindowModel& model) override;
    void showFirstRun(FirstRunModel& model) override;
    void closeFirstRun() override;

private:
    struct Controllers;
    std::unique_ptr<Controllers> controllers_;
};

}  // namespace quorvane
