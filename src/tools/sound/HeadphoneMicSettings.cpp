#include <algorithm>

#include "audio/AudioCodes.hpp"
#include "tools/sound/HeadphoneMicTool.hpp"

namespace quorvane {

SettingsPage HeadphoneMicTool::settingsPage() {
    // The page reads the devices of the last check; a tool that is off has made none.
    std::vector<SettingsRow::ChoiceOption> options{{"", kAutomatic}};
    const auto usable = usableMicrophones(inputDevices_);
    const auto builtIn = std::find_if(usable.begin(), usable.end(), [](const AudioDevice& device) {
        return device.transportType == hal::kTransportBuiltIn;
    });
    if (builtIn != usable.end()) {
        options.push_back({builtIn->uid, kBuiltIn});
    }
    for (const AudioDevice& device : usable) {
        if (device.transportType != hal::kTransportBuiltIn) {
            options.push_back({device.uid, device.name});
        }
    }
    if (preferredMicUID_ && std::none_of(options.begin(), options.end(), [&](const auto& option) {
            return option.value == *preferredMicUID_;
        })) {
        options.push_back({*preferredMicUID_, "Chosen microphone (not connected)"});
    }

    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Choice{kMicrophoneLabel, std::move(options),
                             [this] { return preferredMicUID_.value_or(std::string()); },
                             [this](const std::string& uid) {
                                 setPreferredMicUID(uid.empty() ? std::nullopt
                                                                : std::optional(uid));
                             }},
         {}});
    section.rows.push_back({SettingsRow::Warning{kNoMicrophone}, [this] {
                                return isActive() && !target(inputDevices_, preferredMicUID_);
                            }});
    section.rows.push_back({SettingsRow::Note{std::string(kSwitchedLabel) + ": " +
                                              std::to_string(switchedThisSession_)},
                            {}});
    section.rows.push_back({SettingsRow::Note{kWhenToTurnOff}, {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> HeadphoneMicTool::control() {
    // On while the tool is: the tile switches the tool itself.
    return ToolControl{"Headphone Mic", identity().systemImage, {}, {}};
}

}  // namespace quorvane
