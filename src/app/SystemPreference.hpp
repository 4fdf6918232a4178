#pragma once

#include <optional>
#include <string>

#include "app/SystemPreferenceDomain.hpp"
#include "app/SystemPreferenceError.hpp"
#include "platform/PreferenceValue.hpp"

namespace quorvane {

struct Platform;

// The one place that reads and writes other programs' preference domains. The first change
// Quorvane makes to a (domain, key) records the user's own value in Quorvane's preferences
// ("original.<domain>[.host].<key>", a dictionary with "value", or empty for "absent"); later
// changes keep that record, and restore puts it back and drops it. The records outlive a crash,
// so the value restored is always the one from before Quorvane's first change.
//
// write, set and restore throw SystemPreferenceError when a change cannot be saved or a record
// is damaged; nothing is changed then that could lose the user's value.
class SystemPreference {
public:
    using Domain = SystemPreferenceDomain;

    static constexpr const char* kKillallPath = "/usr/bin/killall";
    static constexpr const char* kBackupValueKey = "value";

    SystemPreference() = delete;

    // The current value, after picking up other programs' recent writes.
    static std::optional<PreferenceValue> read(const Platform& platform, const std::string& key,
                                               const Domain& domain);
    // Writes only when the value differs (none deletes the key); answers whether it wrote.
    static bool write(const Platform& platform, const std::string& key,
                      const std::optional<PreferenceValue>& value, const Domain& domain);
    // write, after recording the user's value if no record exists yet.
    static bool set(const Platform& platform, const std::string& key,
                    const std::optional<PreferenceValue>& value, const Domain& domain);
    // Puts the recorded value back and drops the record; false, doing nothing, without one.
    static bool restore(const Platform& platform, const std::string& key, const Domain& domain);
    // Whether a record exists, that is whether Quorvane's change to the key is in force.
    static bool hasBackup(const Platform& platform, const std::string& key, const Domain& domain);
    // Quits a system process by name; the system relaunches the Dock, Finder, SystemUIServer
    // and ControlCenter, which then read their preferences again. A failure is ignored: the
    // process may simply not be running.
    static void restart(const Platform& platform, const std::string& processName);
};

}  // namespace quorvane
