#include "tools/system/DeviceBatteriesTool.hpp"

#include "platform/HIDBatteries.hpp"
#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"
#include "tools/system/DeviceBatteryList.hpp"

namespace quorvane {

DeviceBatteriesTool::DeviceBatteriesTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      lowLevel_(DeviceBatteryList::validLowLevel(platform.preferences.integer(kLowLevelKey))) {}

DeviceBatteriesTool::~DeviceBatteriesTool() {
    stop();
}

void DeviceBatteriesTool::start() {
    if (running_) {
        return;
    }
    running_ = true;
    timer_ = platform_.scheduler.every(Seconds{kReadSeconds}, [this] { readBatteries(); });
    readBatteries();
}

void DeviceBatteriesTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    timer_.cancel();
    devices_.clear();
    publish();
}

void DeviceBatteriesTool::readBatteries() {
    if (!running_) {
        return;
    }
    devices_ = DeviceBatteryList::devices(platform_.hidBatteries.readings());
    publish();
}

void DeviceBatteriesTool::setLowLevel(int percent) {
    lowLevel_ = DeviceBatteryList::validLowLevel(percent);
    platform_.preferences.set(kLowLevelKey, PreferenceValue(static_cast<std::int64_t>(lowLevel_)));
    publish();
}

SettingsPage DeviceBatteriesTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::ItemList{"Devices",
                               [this] {
                                   std::vector<std::string> lines;
                                   for (const auto& device : devices_) {
                                       lines.push_back(DeviceBatteryList::line(device, lowLevel_));
                                   }
                                   return lines;
                               },
                               nullptr, "No connected device reports its battery."},
         [this] { return running_; }});
    section.rows.push_back({SettingsRow::Button{"Read Again", [this] { readBatteries(); }},
                            [this] { return running_; }});
    section.rows.push_back(
        {SettingsRow::Stepper{"Mark as low at", 5, 50, 5, [this] { return lowLevel_; },
                              [this](std::int64_t value) { setLowLevel(static_cast<int>(value)); },
                              [](std::int64_t value) { return std::to_string(value) + "%"; }},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"Shows the devices that report their battery to macOS: Apple's and "
                           "most other Bluetooth mice, keyboards and trackpads. AirPods and other "
                           "headphones are not among them, because macOS tells apps nothing of "
                           "their battery; the Bluetooth menu shows it. Levels are read every "
                           "five minutes."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> DeviceBatteriesTool::control() {
    return ToolControl{DeviceBatteryList::tileTitle(devices_), "minus.plus.batteryblock", nullptr,
                       [this] { readBatteries(); }};
}

}  // namespace quorvane
