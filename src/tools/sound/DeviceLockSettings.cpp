#include <algorithm>

#include "tools/sound/DeviceLockTool.hpp"

namespace quorvane {

SettingsPage DeviceLockTool::settingsPage() {
    const bool output = role_ == Role::output;
    const auto devices = candidates();
    std::vector<SettingsRow::ChoiceOption> options;
    for (const AudioDevice& device : devices) {
        if (!device.uid.empty()) {
            options.push_back({device.uid, device.name});
        }
    }
    if (lockedUID_ && std::none_of(options.begin(), options.end(), [&](const auto& option) {
            return option.value == *lockedUID_;
        })) {
        options.push_back({*lockedUID_, lockedName_ + kNotConnectedSuffix});
    }

    SettingsSection section{"", {}, ""};
    if (options.empty()) {
        // Nothing to choose from: say so rather than show an empty menu.
        section.rows.push_back({SettingsRow::Note{output ? "No sound output is connected."
                                                         : "No microphone is connected."},
                                {}});
    } else {
        section.rows.push_back(
            {SettingsRow::Choice{
                 output ? "Keep sound on" : "Keep listening through", std::move(options),
                 [this] { return lockedUID_.value_or(std::string()); },
                 [this, devices](const std::string& uid) {
                     const auto found =
                         std::find_if(devices.begin(), devices.end(),
                                      [&](const AudioDevice& device) { return device.uid == uid; });
                     if (found != devices.end()) {
                         choose(*found);
                     }
                 }},
             {}});
    }
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{output ? "When macOS switches the sound to another output, Quorvane "
                                    "switches it back, as long as this device is connected. "
                                    "While it is disconnected, macOS's choice stands until it "
                                    "returns."
                                  : "When macOS switches to another microphone, Quorvane "
                                    "switches back, as long as this microphone is connected. "
                                    "While it is disconnected, macOS's choice stands until it "
                                    "returns."},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"Switched back this session: " + std::to_string(restored_)},
         [this] { return isActive(); }});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
