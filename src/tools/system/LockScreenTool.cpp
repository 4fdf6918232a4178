#include "tools/system/LockScreenTool.hpp"

#include "app/PowerAssertion.hpp"
#include "platform/ChildProcessFailure.hpp"
#include "platform/ChildProcesses.hpp"
#include "platform/PowerManagement.hpp"

namespace quorvane {

LockScreenTool::LockScreenTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      lock_(
          platform, kLockKey, std::nullopt, [this] { perform(Action::lock); },
          [this] { publish(); }),
      sleep_(
          platform, kSleepKey, std::nullopt, [this] { perform(Action::sleep); },
          [this] { publish(); }),
      displayOff_(
          platform, kDisplayOffKey, std::nullopt, [this] { perform(Action::displayOff); },
          [this] { publish(); }) {}

LockScreenTool::~LockScreenTool() {
    stop();
}

void LockScreenTool::start() {
    if (running_) {
        return;
    }
    running_ = true;
    lock_.activate();
    sleep_.activate();
    displayOff_.activate();
    publish();
}

void LockScreenTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    lock_.deactivate();
    sleep_.deactivate();
    displayOff_.deactivate();
    lastError_.reset();
    publish();
}

ShortcutSetting& LockScreenTool::shortcut(Action action) {
    switch (action) {
        case Action::lock:
            return lock_;
        case Action::sleep:
            return sleep_;
        case Action::displayOff:
            break;
    }
    return displayOff_;
}

void LockScreenTool::perform(Action action) {
    lastError_.reset();
    if (action == Action::lock) {
        const int status = platform_.power.lockScreen();
        if (status == PowerManagement::kUnsupported) {
            lastError_ =
                "This version of macOS offers no way for apps to lock the screen. Use ⌃⌘Q.";
        } else if (status != 0) {
            lastError_ = PowerAssertion::failure("Locking the screen", status);
        }
    } else {
        // pmset's own commands, which any user may run: they sleep exactly as the Apple menu
        // and the display timer do, and wait for nothing.
        const bool sleep = action == Action::sleep;
        const auto status =
            platform_.childProcesses.run(kPmset, {sleep ? "sleepnow" : "displaysleepnow"});
        if (!status.succeeded()) {
            const std::string what = sleep ? "Putting the Mac to sleep" : "Turning the display off";
            lastError_ = what + " failed: " + childProcessFailure("pmset", status);
        }
    }
    publish();
}

SettingsPage LockScreenTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(lock_.row("Lock screen"));
    section.rows.push_back(sleep_.row("Sleep"));
    section.rows.push_back(displayOff_.row("Turn display off"));
    section.rows.push_back(
        {SettingsRow::Button{"Lock Now", [this] { perform(Action::lock); }}, {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{"Locks your Mac, puts it to sleep or turns the display off when you "
                           "press a shortcut or the menu's tile. Locking uses a system call that "
                           "Apple does not document, so a macOS update may take it away; this "
                           "page will then say so. Turning the display off locks the Mac only if "
                           "your Lock Screen settings ask for a password right away."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> LockScreenTool::control() {
    return ToolControl{"Lock Screen", "lock.fill", nullptr, [this] { perform(Action::lock); }};
}

}  // namespace quorvane
