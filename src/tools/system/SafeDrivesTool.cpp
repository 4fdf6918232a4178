#include "tools/system/SafeDrivesTool.hpp"

#include <cstdio>

#include "platform/DiskArbitration.hpp"
#include "platform/PowerManagement.hpp"
#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

namespace {

SafeDrivesPlan::Volume planned(const DiskDescription& disk) {
    return {disk.bsdName, disk.volumeName, disk.deviceInternal, disk.volumeNetwork,
            !disk.volumePath.empty()};
}

}  // namespace

SafeDrivesTool::SafeDrivesTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      remount_(platform.preferences.boolean(kRemountKey).value_or(true)) {}

SafeDrivesTool::~SafeDrivesTool() {
    stop();
}

void SafeDrivesTool::start() {
    if (running_) {
        return;
    }
    running_ = true;
    systemPower_ = platform_.power.registerForSystemPower(
        [this](std::uint32_t message, const std::function<void()>& allow) {
            powerMessage(message, allow);
        });
    lastError_ = systemPower_ ? std::nullopt
                              : std::optional<std::string>(
                                    "macOS did not let Quorvane watch for sleep, so drives are "
                                    "not ejected.");
    publish();
}

void SafeDrivesTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    // Never leave the Mac waiting for an answer that will not come; the answer goes out
    // while the registration it belongs to still stands.
    finishSleep();
    systemPower_.cancel();
    requests_.clear();
    // What was ejected and is not back is put back, with nobody left to hear the answers.
    mountRemembered(false);
    requests_.clear();
    lastError_.reset();
    publish();
}

void SafeDrivesTool::powerMessage(std::uint32_t message, const std::function<void()>& allow) {
    if (message == PowerManagement::kSystemWillSleep) {
        ejectForSleep(allow);
    } else if (message == PowerManagement::kSystemHasPoweredOn) {
        mountAfterWake();
    } else if (allow) {
        allow();  // "may the system sleep?": no objection
    }
}

void SafeDrivesTool::ejectForSleep(std::function<void()> allow) {
    finishSleep();
    requests_.clear();
    lastError_.reset();
    std::vector<SafeDrivesPlan::Volume> volumes;
    for (const auto& disk : platform_.diskArbitration.mountedVolumes()) {
        volumes.push_back(planned(disk));
        names_[disk.bsdName] = disk.volumeName;
    }
    const auto unmount = plan_.toUnmount(volumes);
    allowSleep_ = std::move(allow);
    outstanding_ = unmount.size();
    if (unmount.empty()) {
        finishSleep();
        return;
    }
    deadline_ = platform_.scheduler.after(Seconds{kSleepDeadlineSeconds}, [this] {
        lastError_ = "A drive did not eject within " +
                     std::to_string(static_cast<int>(kSleepDeadlineSeconds)) +
                     " seconds, so the Mac went to sleep with it mounted.";
        finishSleep();
    });
    for (const auto& bsdName : unmount) {
        requests_.push_back(platform_.diskArbitration.unmount(bsdName, [this, bsdName](int status) {
            // A late answer still counts: a drive that went is mounted again on wake.
            plan_.unmounted(bsdName, status == 0);
            if (status != 0) {
                lastError_ = "“" + names_[bsdName] +
                             "” could not be ejected before sleep: " + dissent(status);
            }
            if (outstanding_ > 0 && --outstanding_ == 0) {
                finishSleep();
            }
            publish();
        }));
    }
    publish();
}

void SafeDrivesTool::finishSleep() {
    deadline_.cancel();
    outstanding_ = 0;
    if (auto allow = std::exchange(allowSleep_, nullptr)) {
        allow();
    }
}

void SafeDrivesTool::mountAfterWake() {
    finishSleep();
    requests_.clear();
    if (remount_) {
        mountRemembered(true);
    } else {
        (void)plan_.toMount({});
    }
    publish();
}

void SafeDrivesTool::mountRemembered(bool report) {
    std::vector<SafeDrivesPlan::Volume> present;
    for (const auto& bsdName : plan_.remembered()) {
        if (const auto disk = platform_.diskArbitration.describe(bsdName)) {
            present.push_back(planned(*disk));
        }
    }
    for (const auto& bsdName : plan_.toMount(present)) {
        requests_.push_back(
            platform_.diskArbitration.mount(bsdName, [this, bsdName, report](int status) {
                if (report && status != 0) {
                    lastError_ = "“" + names_[bsdName] +
                                 "” could not be mounted again after sleep: " + dissent(status);
                    publish();
                }
            }));
    }
}

std::vector<std::string> SafeDrivesTool::ejectedNames() const {
    std::vector<std::string> names;
    for (const auto& bsdName : plan_.remembered()) {
        const auto found = names_.find(bsdName);
        names.push_back(found != names_.end() ? found->second : bsdName);
    }
    return names;
}

void SafeDrivesTool::setRemounts(bool on) {
    remount_ = on;
    platform_.preferences.set(kRemountKey, PreferenceValue(on));
    publish();
}

std::string SafeDrivesTool::dissent(int status) {
    char text[48];
    std::snprintf(text, sizeof text, "Disk Arbitration status 0x%08X",
                  static_cast<unsigned>(status));
    return text;
}

SettingsPage SafeDrivesTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Toggle{"Mount the drives again after wake", [this] { return remount_; },
                             [this](bool on) { setRemounts(on); }, ""},
         {}});
    section.rows.push_back(
        {SettingsRow::ItemList{"Ejected for sleep", [this] { return ejectedNames(); }, nullptr,
                               "No drive is waiting to be mounted again."},
         [this] { return running_; }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{"Before your Mac sleeps, Quorvane ejects the external drives "
                           "connected to it, so nothing is lost if one is unplugged or loses "
                           "power while the Mac sleeps, and mounts the same drives again when it "
                           "wakes. Drives you ejected yourself, the startup disk and network "
                           "volumes are left alone. A drive in use by an app cannot be ejected; "
                           "the Mac then sleeps with it mounted, as it would without Quorvane."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
