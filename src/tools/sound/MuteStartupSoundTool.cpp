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
    if (current != StartupMute::kMuted &&
        !runNvram(StartupMute::kMuted, "Quorvane wants to mute your Mac's startup sound.") &&
        firstChange) {
        // Nothing was changed, so there is nothing to put back.
        platform_.preferences.remove(kBackupKey);
    }
    publish();
}

void MuteStartupSoundTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    lastError_.clear();
    restore();
}

bool MuteStartupSoundTool::restore() {
    const auto original = backup();
    if (!original) {
        return true;
    }
    if (platform_.firmwareVariables.value(StartupMute::kVariable) != *original &&
        !runNvram(*original, "Quorvane wants to turn your Mac's startup sound back on.")) {
        // Kept, so the page can offer to try again.
        publish();
        return false;
    }
    platform_.preferences.remove(kBackupKey);
    lastError_.clear();
    publish();
    return true;
}

bool MuteStartupSoundTool::runNvram(const std::optional<std::string>& value,
                                    const std::string& reason) {
    const auto status = AdministratorCommand::run(platform_.childProcesses, StartupMute::kNvram,
                                                  StartupMute::nvramArguments(value), reason);
    if (status.succeeded()) {
        return true;
    }
    lastError_ = !status.launched ? status.launchError
                 : value == StartupMute::kMuted
                     ? "The startup sound was not muted: the administrator's password was not "
                       "given, or the Mac refused the change."
                     : "The startup sound was not turned back on: the administrator's password "
                       "was not given, or the Mac refused the change.";
    return false;
}

}  // namespace quorvane
