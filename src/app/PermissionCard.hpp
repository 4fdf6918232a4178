#pragma once

#include <string>
#include <vector>

#include "app/Permission.hpp"
#include "base/ColorRole.hpp"

namespace quorvane {

class PermissionCenter;

// What a permission's card shows in the settings window and the first-run setup. Steps and
// help use **double asterisks** for bold text.
struct PermissionCard {
    enum class State { granted, missing, untestable };
    enum class Action { openSystemSettings, restartQuorvane };
    struct Button {
        std::string title;
        Action action;
    };

    static constexpr const char* kIcon = "lock.shield.fill";
    static constexpr const char* kHelp =
        "Quorvane already switched on but this still shows? Select Quorvane in the list, remove "
        "it with the − button, then click Open System Settings again.";

    Permission permission;
    std::string title;
    std::string explanation;
    State state;
    std::string stateIcon;
    ColorRole stateColor;
    std::vector<std::string> steps;
    std::vector<Button> buttons;

    static PermissionCard make(Permission permission, const PermissionCenter& center);
    // Once granted there is nothing left to do: the steps, buttons and help are left out.
    bool showsSteps() const { return state != State::granted; }
};

}  // namespace quorvane
