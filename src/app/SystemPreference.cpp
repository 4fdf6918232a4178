#include "app/SystemPreference.hpp"

#include "platform/ChildProcesses.hpp"
#include "platform/Platform.hpp"
#include "platform/PreferenceDomains.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

// The record's dictionary; a record of another kind was not written by Quorvane and cannot
// say what the user had, so nothing is done with it.
PreferenceValue::Dictionary backupRecord(const std::string& key,
                                         const SystemPreferenceDomain& domain,
                                         const PreferenceValue& stored) {
    const auto* record = stored.dictionary();
    if (record == nullptr) {
        throw SystemPreferenceError("The saved original of " + key + " in " + domain.name() +
                                    " is damaged, so it was left as it is (" +
                                    domain.backupKey(key) + " in Quorvane's preferences).");
    }
    return *record;
}

}  // namespace

std::optional<PreferenceValue> SystemPreference::read(const Platform& platform,
                                                      const std::string& key,
                                                      const Domain& domain) {
    // Whether this succeeds says nothing about the read: a domain that cannot be written to
    // still reads.
    platform.preferenceDomains.synchronize(domain.name(), domain.host());
    return platform.preferenceDomains.copyValue(key, domain.name(), domain.host());
}

bool SystemPreference::write(const Platform& platform, const std::string& key,
                             const std::optional<PreferenceValue>& value, const Domain& domain) {
    const auto current = read(platform, key, domain);
    if (current == value) {
        return false;
    }
    platform.preferenceDomains.setValue(key, value, domain.name(), domain.host());
    if (!platform.preferenceDomains.synchronize(domain.name(), domain.host())) {
        const std::string why = platform.preferenceDomains.lastError();
        // The unsaved value would otherwise linger in the cache and read as if it had been made.
        platform.preferenceDomains.setValue(key, current, domain.name(), domain.host());
        throw SystemPreferenceError("Couldn't change " + key + " in " + domain.name() +
                                    (why.empty() ? "." : ": " + why));
    }
    return true;
}

bool SystemPreference::hasBackup(const Platform& platform, const std::string& key,
                                 const Domain& domain) {
    return platform.preferences.object(domain.backupKey(key)).has_value();
}

bool SystemPreference::set(const Platform& platform, const std::string& key,
                           const std::optional<PreferenceValue>& value, const Domain& domain) {
    const std::string backupKey = domain.backupKey(key);
    const bool recordedNow = !platform.preferences.object(backupKey).has_value();
    if (recordedNow) {
        PreferenceValue::Dictionary record;
        if (auto original = read(platform, key, domain)) {
            record.emplace(kBackupValueKey, std::move(*original));
        }
        platform.preferences.set(backupKey, std::move(record));
        if (!platform.preferences.lastError().empty()) {
            // Without the record the change could never be undone, so it is not made.
            platform.preferences.remove(backupKey);
            throw SystemPreferenceError(
                "Couldn't keep the original of " + key + " in " + domain.name() +
                ", so it was not changed: " + platform.preferences.lastError());
        }
    }
    try {
        return write(platform, key, value, domain);
    } catch (const SystemPreferenceError&) {
        // Nothing changed, so a record made for this change would only stand in the way of
        // reading the user's value afresh next time.
        if (recordedNow) {
            platform.preferences.remove(backupKey);
        }
        throw;
    }
}

bool SystemPreference::restore(const Platform& platform, const std::string& key,
                               const Domain& domain) {
    const std::string backupKey = domain.backupKey(key);
    const auto stored = platform.preferences.object(backupKey);
    if (!stored) {
        return false;
    }
    const auto record = backupRecord(key, domain, *stored);
    std::optional<PreferenceValue> original;
    if (const auto found = record.find(kBackupValueKey); found != record.end()) {
        original = found->second;
    }
    // The record goes only once the user's value is back: if that cannot be saved, the next
    // attempt still knows what to put back.
    const bool changed = write(platform, key, original, domain);
    platform.preferences.remove(backupKey);
    return changed;
}

void SystemPreference::restart(const Platform& platform, const std::string& processName) {
    platform.childProcesses.run(kKillallPath, {processName});
}

}  // namespace quorvane
