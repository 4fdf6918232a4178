#pragma once

namespace quorvane {

class FirstRunModel;
class SettingsWindowModel;

// The application's own windows. Each is built from its model the first time it is shown
// and renders whatever the model publishes from then on.
class AppWindows {
public:
    virtual ~AppWindows() = default;

    // Brings the window to the front and makes Quorvane active.
    virtual void showSettings(SettingsWindowModel& model) = 0;
    virtual void showFirstRun(FirstRunModel& model) = 0;
    virtual void closeFirstRun() = 0;
};

}  // namespace quorvane
