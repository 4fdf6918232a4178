#pragma once

#include <string>

#include "app/Permission.hpp"
#include "app/PermissionCard.hpp"
#include "base/Observable.hpp"
#include "base/Subscription.hpp"

namespace quorvane {

class AppInstance;
class PermissionCenter;

// What the buttons of a permission card do, wherever the card is shown.
class PermissionCardActions : public Observable {
public:
    PermissionCardActions(PermissionCenter& permissions, AppInstance& instance)
        : permissions_(permissions), instance_(instance) {}

    void perform(Permission permission, PermissionCard::Action action);
    // Why the last restart failed; empty otherwise. Shown under the cards.
    const std::string& lastError() const { return lastError_; }

private:
    void restart();

    PermissionCenter& permissions_;
    AppInstance& instance_;
    std::string lastError_;
    Subscription relaunch_;
    bool restarting_ = false;
};

}  // namespace quorvane
