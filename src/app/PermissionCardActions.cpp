#include "app/PermissionCardActions.hpp"

#include "app/PermissionCenter.hpp"
#include "platform/AppInstance.hpp"

namespace quorvane {

void PermissionCardActions::perform(Permission permission, PermissionCard::Action action) {
    switch (action) {
        case PermissionCard::Action::openSystemSettings:
            permissions_.request(permission);
            return;
        case PermissionCard::Action::restartQuorvane:
            restart();
            return;
    }
}

void PermissionCardActions::restart() {
    // A second press while the new instance is still launching would start a third.
    if (restarting_) {
        return;
    }
    restarting_ = true;
    relaunch_.cancel();
    // This instance quits only once the new one runs, so a failed launch leaves Quorvane up.
    relaunch_ = instance_.launchNewInstance([this](const std::string& error) {
        restarting_ = false;
        if (error.empty()) {
            instance_.terminate();
            return;
        }
        lastError_ = "Quorvane couldn't restart itself (" + error +
                     "). Quit it from the menu and open it again.";
        publish();
    });
}

}  // namespace quorvane
