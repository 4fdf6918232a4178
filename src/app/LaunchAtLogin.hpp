#pragma once

#include <string>

#include "base/Observable.hpp"
#include "ui/SettingsSection.hpp"

namespace quorvane {

class LoginItem;

// The app's "open at login" setting. The system's login item is the only record of it, so
// nothing is stored in the preferences and a change made in System Settings shows at once.
class LaunchAtLogin : public Observable {
public:
    static constexpr const char* kToggleLabel = "Open Quorvane at login";
    static constexpr const char* kApprovalWarning =
        "macOS is waiting for you to allow Quorvane in System Settings › General › Login Items.";
    static constexpr const char* kApprovalButton = "Open Login Items Settings";

    explicit LaunchAtLogin(LoginItem& item) : item_(item) {}

    // Registered counts as on even while it waits for the user's approval: that was the
    // user's choice, and switching it off again must unregister.
    bool isOn() const;
    bool needsApproval() const;
    void set(bool on);
    void openLoginItemsSettings();
    // Why the last change did not take; empty when it did.
    const std::string& lastError() const { return lastError_; }

    // The setting as rows of the settings vocabulary. The error is a plain warning, so the
    // section is built again when this publishes.
    SettingsSection section();

private:
    LoginItem& item_;
    std::string lastError_;
};

}  // namespace quorvane
