#include "tools/sound/MuteStartupSoundTool.hpp"

#include "app/AdministratorCommand.hpp"
#include "platform/FirmwareVariables.hpp"
#include "platform/Preferences.hpp"
#include "tools/sound/StartupMute.hpp"

namespace quorvane {

MuteStartupSoundTool::MuteStartupSoundTool(const ToolDescriptor& descriptor,
                                           const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {}

std::optional<std::optional<std::string>> MuteStartupSoundTool::backup() const {
    const auto stored = platform_.preferences.object(kBackupKey);
    const auto* record = stored ? stored->dictionary() : nullptr;
    if (record == nullptr) {
        return std::nullopt;
    }
    const auto found = record->find("value");
    const auto* bytes = found != record->end() ? found->second.data() : nullptr;
    return bytes != nullptr ? std::optional<std::string>(std::string(bytes->begin(), bytes->end()))
                            : std::nullopt;
}

bool MuteStartupSoundTool::hasBackup() const {
    return backup().has_value();
}

void MuteStartupSoundTool::start() {
    // Turned on again while the window to put the value back is still up: that request no
    // longer stands, and what the variable holds now decides.
    request_.reset();
    running_ = true;
    lastError_.clear();
    const auto current = platform_.firmwareVariables.value(StartupMute::kVariable);
    const bool firstChange = !hasBackup();
    if (firstChange) {
        PreferenceValue::Dictionary record;
        if (current) {
            record.emplace("value", PreferenceValue::Data(current->begin(), current->end()));
        }
        platform_.preferences.set(kBackupKey, std::move(record));
    }
    if (current != StartupMute::kMuted) {
        requestNvram(StartupMute::kMuted, "Quorvane wants to mute your Mac's startup sound.",
                     [this, firstChange](bool changed) {
                         if (!changed && firstChange) {
                             // Nothing was changed, so there is nothing to put back.
                             platform_.preferences.remove(kBackupKey);
                         }
                     });
    }
    publish();
}

void MuteStartupSoundTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    lastError_.clear();
    // A window still asking to mute closes; restoring then looks at what the variable holds,
    // in case the answer came just before.
    request_.reset();
    restore();
    publish();
}

void MuteStartupSoundTool::restore() {
    const auto original = backup();
    if (!original || request_) {
        return;
    }
    if (platform_.firmwareVariables.value(StartupMute::kVariable) == *original) {
        platform_.preferences.remove(kBackupKey);
        lastError_.clear();
        publish();
        return;
    }
    requestNvram(*original, "Quorvane wants to turn your Mac's startup sound back on.",
                 [this](bool changed) {
                     // Kept on failure, so the page can offer to try again.
                     if (changed) {
                         platform_.preferences.remove(kBackupKey);
                         lastError_.clear();
                     }
                 });
    publish();
}

void MuteStartupSoundTool::requestNvram(const std::optional<std::string>& value,
                                        const std::string& reason,
                                        std::function<void(bool changed)> done) {
    const bool muting = value == StartupMute::kMuted;
    request_ = AdministratorCommand::start(
        platform_.childProcesses, StartupMute::kNvram, StartupMute::nvramArguments(value), reason,
        [this, muting, done = std::move(done)](const ChildProcessStatus& status) {
            request_.reset();
            if (!status.succeeded()) {
                lastError_ = !status.launched ? status.launchError
                             : muting
                                 ? "The startup sound was not muted: the administrator's password "
                                   "was not given, or the Mac refused the change."
                                 : "The startup sound was not turned back on: the administrator's "
                                   "password was not given, or the Mac refused the change.";
            }
            done(status.succeeded());
            publish();
        });
}

}  // namespace quorvane
