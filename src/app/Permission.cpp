#include "app/Permission.hpp"

namespace quorvane {

std::string_view rawValue(Permission permission) {
    switch (permission) {
        case Permission::accessibility:
            return "accessibility";
        case Permission::systemAudioRecording:
            return "systemAudioRecording";
        case Permission::screenRecording:
            return "screenRecording";
    }
    return {};
}

std::optional<Permission> permissionFromRawValue(std::string_view raw) {
    for (const auto permission : kAllPermissions) {
        if (rawValue(permission) == raw) {
            return permission;
        }
    }
    return std::nullopt;
}

std::string_view title(Permission permission) {
    switch (permission) {
        case Permission::accessibility:
            return "Accessibility";
        case Permission::systemAudioRecording:
            return "System Audio Recording";
        case Permission::screenRecording:
            return "Screen Recording";
    }
    return {};
}

std::string_view explanation(Permission permission) {
    switch (permission) {
        case Permission::accessibility:
            return "Lets Quorvane notice when windows open and bring them to the front.";
        case Permission::systemAudioRecording:
            return "Lets Quorvane change each app's volume before it reaches your speakers. "
                   "Nothing is recorded or saved. macOS asks for this the first time you change "
                   "an app's volume.";
        case Permission::screenRecording:
            return "Lets Quorvane show live pictures of your windows (pinned windows, Dock and "
                   "switcher previews) and read text on screen. Nothing is recorded or saved.";
    }
    return {};
}

}  // namespace quorvane
