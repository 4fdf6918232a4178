#include "tools/system/PresentationModeTool.hpp"

#include "app/SystemPreference.hpp"
#include "app/SystemPreferenceError.hpp"
#include "platform/ChildProcessFailure.hpp"
#include "platform/ChildProcesses.hpp"
#include "platform/Preferences.hpp"
#include "tools/system/PreferenceFlipTable.hpp"

namespace quorvane {

namespace {

// The same change the hide-desktop-icons tool makes, declared once there.
const PreferenceFlipTable& desktopIcons() {
    return *PreferenceFlipTable::find("hide-desktop-icons");
}

}  // namespace

PresentationModeTool::PresentationModeTool(const ToolDescriptor& descriptor,
                                           const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      hideIcons_(platform.preferences.boolean(kHideIconsKey).value_or(true)),
      startShortcut_(platform.preferences.string(kStartShortcutKey).value_or("")),
      endShortcut_(platform.preferences.string(kEndShortcutKey).value_or("")) {}

PresentationModeTool::~PresentationModeTool() {
    stop();
}

void PresentationModeTool::start() {
    if (running_) {
        return;
    }
    running_ = true;
    lastError_.reset();
    assertion_ = std::make_unique<PowerAssertion>(
        platform_.power, PowerManagement::AssertionType::preventUserIdleDisplaySleep,
        kAssertionName);
    if (assertion_->error()) {
        fail(*assertion_->error());
    }
    if (hideIcons_) {
        hideIcons();
    }
    runShortcut(startShortcut_);
    publish();
}

void PresentationModeTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    lastError_.reset();
    assertion_.reset();
    showIcons();
    runShortcut(endShortcut_);
    publish();
}

void PresentationModeTool::tidy() {
    showIcons();
}

void PresentationModeTool::hideIcons() {
    const PreferenceFlip& flip = desktopIcons().flips.front();
    // Icons another tool already hides stay that tool's business; taking the change over would
    // show them again when the presentation ends.
    if (platform_.preferences.boolean(kHidingKey) ||
        SystemPreference::hasBackup(platform_, flip.key, flip.domain)) {
        return;
    }
    try {
        platform_.preferences.set(kHidingKey, PreferenceValue(true));
        if (SystemPreference::set(platform_, flip.key, flip.value, flip.domain)) {
            for (const auto& process : desktopIcons().restarts) {
                SystemPreference::restart(platform_, process);
            }
        }
    } catch (const SystemPreferenceError& error) {
        fail(error.what());
    }
}

void PresentationModeTool::showIcons() {
    if (!platform_.preferences.boolean(kHidingKey)) {
        return;
    }
    const PreferenceFlip& flip = desktopIcons().flips.front();
    try {
        if (SystemPreference::restore(platform_, flip.key, flip.domain)) {
            for (const auto& process : desktopIcons().restarts) {
                SystemPreference::restart(platform_, process);
            }
        }
        platform_.preferences.remove(kHidingKey);
    } catch (const SystemPreferenceError& error) {
        // The marker stays, so the next stop or launch tries again.
        fail(error.what());
    }
}

void PresentationModeTool::runShortcut(const std::string& name) {
    // Whichever Shortcut still runs belongs to the other half of the presentation.
    shortcut_.reset();
    runningShortcut_.reset();
    if (name.empty()) {
        return;
    }
    runningShortcut_ = name;
    shortcut_ = platform_.childProcesses.start(
        kShortcutsPath, {"run", name}, [this, name](const ChildProcessStatus& status) {
            shortcut_.reset();
            runningShortcut_.reset();
            if (!status.succeeded()) {
                fail("The Shortcut \"" + name +
                     "\" did not run: " + childProcessFailure("shortcuts", status));
            }
            publish();
        });
}

void PresentationModeTool::fail(std::string error) {
    if (!lastError_) {
        lastError_ = std::move(error);
    }
}

void PresentationModeTool::setHidesDesktopIcons(bool on) {
    hideIcons_ = on;
    platform_.preferences.set(kHideIconsKey, PreferenceValue(on));
    if (running_) {
        on ? hideIcons() : showIcons();
    }
    publish();
}

void PresentationModeTool::setStartShortcut(const std::string& name) {
    startShortcut_ = name;
    platform_.preferences.set(kStartShortcutKey, PreferenceValue(name));
    publish();
}

void PresentationModeTool::setEndShortcut(const std::string& name) {
    endShortcut_ = name;
    platform_.preferences.set(kEndShortcutKey, PreferenceValue(name));
    publish();
}

SettingsPage PresentationModeTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back({SettingsRow::Toggle{"Hide desktop icons", [this] { return hideIcons_; },
                                                [this](bool on) { setHidesDesktopIcons(on); }, ""},
                            {}});
    section.rows.push_back(
        {SettingsRow::TextField{"Shortcut to run when starting", "Shortcut name",
                                [this] { return startShortcut_; },
                                [this](const std::string& name) { setStartShortcut(name); }},
         {}});
    section.rows.push_back(
        {SettingsRow::TextField{"Shortcut to run when ending", "Shortcut name",
                                [this] { return endShortcut_; },
                                [this](const std::string& name) { setEndShortcut(name); }},
         {}});
    if (runningShortcut_) {
        section.rows.push_back(
            {SettingsRow::Note{"Running the Shortcut \"" + *runningShortcut_ + "\"…"}, {}});
    }
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{"While on, your Mac and its display stay awake and the desktop icons "
                           "are hidden; turning it off puts both back. macOS gives apps no way to "
                           "silence notifications, so make a Shortcut in the Shortcuts app that "
                           "turns a Focus on (and one that turns it off) and name them here."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> PresentationModeTool::control() {
    return ToolControl{"Presenting", "play.rectangle.fill", [this] { return running_; }, nullptr};
}

}  // namespace quorvane
