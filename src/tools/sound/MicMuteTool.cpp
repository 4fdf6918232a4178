#include "tools/sound/MicMuteTool.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"
#include "base/Json.hpp"
#include "input/InputServices.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

AudioPropertyAddress inputAddress(std::uint32_t selector, std::uint32_t element) {
    return {selector, hal::kScopeInput, element};
}

// The four bytes of a mute flag or a volume travel as one integer, so they come back exactly.
std::int64_t bitsOf(const std::vector<std::uint8_t>& bytes) {
    std::uint32_t bits = 0;
    std::memcpy(&bits, bytes.data(), std::min(bytes.size(), sizeof bits));
    return bits;
}

std::vector<std::uint8_t> bytesOf(std::int64_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    std::vector<std::uint8_t> bytes(sizeof bits);
    std::memcpy(bytes.data(), &bits, sizeof bits);
    return bytes;
}

}  // namespace

MicMuteTool::MicMuteTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      shortcut_(
          platform, kShortcutKey, std::nullopt, [this] { toggle(); }, [this] { publish(); }) {}

MicMuteTool::~MicMuteTool() {
    stop();
}

void MicMuteTool::start() {
    if (isActive()) {
        return;
    }
    restoreBackup();
    // A microphone that connects, or becomes the default, while muted is muted as well.
    for (const std::uint32_t selector : {hal::kDefaultInputDevice, hal::kDevices}) {
        listeners_.push_back(std::make_unique<PropertyListener>(
            platform_.audioHardware, hal::kSystemObject, hal::globalAddress(selector), [this] {
                if (isMuted_) {
                    apply();
                    publish();
                }
            }));
    }
    shortcut_.activate();
    publish();
}

void MicMuteTool::stop() {
    if (!isActive()) {
        return;
    }
    listeners_.clear();
    shortcut_.deactivate();
    if (isMuted_) {
        isMuted_ = false;
        restore();
    }
    lastError_.reset();
    publish();
}

void MicMuteTool::tidy() {
    restoreBackup();
}

void MicMuteTool::toggle() {
    setMuted(!isMuted_);
    showNotice();
}

void MicMuteTool::setMuted(bool muted) {
    if (muted == isMuted_ || !isActive()) {
        return;
    }
    isMuted_ = muted;
    lastError_.reset();
    if (muted) {
        apply();
    } else {
        restore();
    }
    publish();
}

void MicMuteTool::showNotice() {
    platform_.input.hud.show(HUDCard{isMuted_ ? kMutedImage : kUnmutedImage,
                                     isMuted_ ? kMutedTitle : kUnmutedTitle, std::nullopt},
                             true, kNoticeDuration);
}

void MicMuteTool::apply() {
    const auto devices = inputDevices(platform_.audioHardware);
    // Devices that went away are forgotten; one that returns is muted afresh.
    std::erase_if(saved_, [&](const auto& entry) {
        return std::none_of(devices.begin(), devices.end(),
                            [&](const AudioDevice& device) { return device.id == entry.first; });
    });
    for (const AudioDevice& device : devices) {
        muteDevice(device);
    }
    writeBackup();
}

void MicMuteTool::muteDevice(const AudioDevice& audioDevice) {
    AudioHardware& hardware = platform_.audioHardware;
    const AudioObjectID device = audioDevice.id;
    const std::string& name = audioDevice.name;
    auto known = saved_.find(device);
    if (known == saved_.end()) {
        Saved saved;
        saved.uid = audioDevice.uid;
        for (const std::uint32_t selector : {hal::kMute, hal::kVolumeScalar}) {
            for (std::uint32_t element = 0; element <= kLastChannel; ++element) {
                std::vector<std::uint8_t> value(4);
                auto size = static_cast<std::uint32_t>(value.size());
                if (hardware.getPropertyData(device, inputAddress(selector, element), size,
                                             value.data()) == 0 &&
                    size == value.size()) {
                    saved.original.emplace(element, std::move(value));
                }
            }
            if (!saved.original.empty()) {
                saved.selector = selector;
                break;
            }
        }
        if (saved.original.empty()) {
            lastError_ = "Couldn't mute " + name + ": it has no mute or volume control";
            return;
        }
        known = saved_.emplace(device, std::move(saved)).first;
    }
    const Saved& saved = known->second;
    const std::uint32_t muted = 1;
    const float silent = 0.0f;
    for (const auto& [element, original] : saved.original) {
        const void* data = saved.selector == hal::kMute ? static_cast<const void*>(&muted)
                                                        : static_cast<const void*>(&silent);
        if (const OSStatus status =
                hardware.setPropertyData(device, inputAddress(saved.selector, element), 4, data);
            status != 0) {
            lastError_ = "Couldn't mute " + name + ": " +
                         CoreAudioError::writing(status, saved.selector).description();
        }
    }
}

void MicMuteTool::restore() {
    // Statuses are ignored: a device that has gone has nothing left to put back.
    for (const auto& [device, saved] : saved_) {
        for (const auto& [element, original] : saved.original) {
            platform_.audioHardware.setPropertyData(device, inputAddress(saved.selector, element),
                                                    static_cast<std::uint32_t>(original.size()),
                                                    original.data());
        }
    }
    saved_.clear();
    platform_.preferences.remove(kBackupKey);
}

void MicMuteTool::writeBackup() {
    Json devices = Json::emptyObject();
    for (const auto& [device, saved] : saved_) {
        if (saved.uid.empty()) {
            continue;  // nothing to find it by after a relaunch
        }
        Json values = Json::emptyObject();
        for (const auto& [element, original] : saved.original) {
            values.set(std::to_string(element), bitsOf(original));
        }
        Json entry;
        entry.set("selector", saved.selector);
        entry.set("values", std::move(values));
        devices.set(saved.uid, std::move(entry));
    }
    platform_.preferences.set(kBackupKey, devices.serialize());
}

void MicMuteTool::restoreBackup() {
    const auto text = platform_.preferences.string(kBackupKey);
    if (!text) {
        return;
    }
    const auto backup = Json::parse(*text);
    if (!backup || !backup->object()) {
        // Kept as it is: nothing here can do better than a person reading it.
        lastError_ = "Couldn't read the microphone levels saved before muting";
        return;
    }
    Json left = Json::emptyObject();
    const auto devices = inputDevices(platform_.audioHardware);
    for (const auto& [uid, entry] : *backup->object()) {
        const std::string& wanted = uid;
        const auto present =
            std::find_if(devices.begin(), devices.end(),
                         [&wanted](const AudioDevice& device) { return device.uid == wanted; });
        const Json* selector = entry.find("selector");
        const Json* values = entry.find("values");
        if (present == devices.end() || !selector || !selector->integer() || !values ||
            !values->object()) {
            left.set(uid, entry);  // put back on a later launch, when it is plugged in
            continue;
        }
        for (const auto& [element, value] : *values->object()) {
            const auto channel = std::strtoul(element.c_str(), nullptr, 10);
            if (!value.integer() || channel > kLastChannel) {
                continue;
            }
            const auto bytes = bytesOf(*value.integer());
            platform_.audioHardware.setPropertyData(
                present->id,
                inputAddress(static_cast<std::uint32_t>(*selector->integer()),
                             static_cast<std::uint32_t>(channel)),
                static_cast<std::uint32_t>(bytes.size()), bytes.data());
        }
    }
    if (left.object()->empty()) {
        platform_.preferences.remove(kBackupKey);
    } else {
        platform_.preferences.set(kBackupKey, left.serialize());
    }
}

SettingsPage MicMuteTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(shortcut_.row("Mute or unmute"));
    section.rows.push_back({SettingsRow::Toggle{"Microphone muted", [this] { return isMuted_; },
                                                [this](bool on) { setMuted(on); }, ""},
                            [this] { return isActive(); }});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{"Mutes every microphone at once, in every app. Microphones that "
                           "connect while muted are muted too. Turning this off unmutes them."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> MicMuteTool::control() {
    return ToolControl{"Mic Mute", isMuted_ ? kMutedImage : kUnmutedImage,
                       [this] { return isMuted_; }, [this] { toggle(); }};
}

}  // namespace quorvane
