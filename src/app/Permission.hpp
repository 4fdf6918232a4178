#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quorvane {

// Privacy permissions a tool can need. Compared and hashed by case, so usable as a set element.
enum class Permission { accessibility, systemAudioRecording, screenRecording };

inline constexpr std::array<Permission, 3> kAllPermissions = {
    Permission::accessibility, Permission::systemAudioRecording, Permission::screenRecording};

// The stored name of the case ("accessibility", "systemAudioRecording", "screenRecording").
std::string_view rawValue(Permission permission);
std::optional<Permission> permissionFromRawValue(std::string_view raw);
std::string_view title(Permission permission);
std::string_view explanation(Permission permission);

}  // namespace quorvane
