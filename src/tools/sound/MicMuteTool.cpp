#include "tools/sound/MicMuteTool.hpp"

#include <algorithm>

#include "audio/AudioCodes.hpp"
#include "audio/CoreAudio+Helpers.hpp"
#include "input/InputServices.hpp"

namespace quorvane {

namespace {

AudioPropertyAddress inputAddress(std::uint32_t selector, std::uint32_t element) {
    return {selector, hal::kScopeInput, element};
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
        muteDevice(device.id, device.name);
    }
}

void MicMuteTool::muteDevice(AudioObjectID device, const std::string& name) {
    AudioHardware& hardware = platform_.audioHardware;
    auto known = saved_.find(device);
    if (known == saved_.end()) {
        Saved saved;
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
}

SettingsPage MicMuteTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(shortcut_.row("Mute or unmute"));
    section.rows.push_back({SettingsRow::Toggle{"Microphone muted", [this] { return isMuted_; },
                                                [this](bool on) { setMuted(on); }, ""},
                            [this] { return isActive(); }});
    if (lastError_) {
        section.rows.push_back({SettingsRow::Warning{*lastError_}, {}});
    }
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
