#pragma once

namespace quorvane {

// Which hosts a foreign preference applies to: every Mac of the user (kCFPreferencesAnyHost)
// or only this one (kCFPreferencesCurrentHost, the "ByHost" preferences).
enum class PreferenceHost { any, current };

}  // namespace quorvane
