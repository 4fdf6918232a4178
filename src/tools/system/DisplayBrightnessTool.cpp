#include "tools/system/DisplayBrightnessTool.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "input/InputServices.hpp"
#include "platform/DisplayConfiguration.hpp"
#include "platform/Event.hpp"
#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"
#include "platform/Screens.hpp"
#include "tools/system/BrightnessKeys.hpp"
#include "tools/system/DdcPacket.hpp"

namespace quorvane {

namespace {

PreferenceValue::Dictionary dictionary(Preferences& preferences, const char* key) {
    if (const auto stored = preferences.object(key)) {
        if (const auto* entries = stored->dictionary()) {
            return *entries;
        }
    }
    return {};
}

}  // namespace

DisplayBrightnessTool::DisplayBrightnessTool(const ToolDescriptor& descriptor,
                                             const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      keys_(platform.preferences.boolean(kKeysKey).value_or(true)) {}

DisplayBrightnessTool::~DisplayBrightnessTool() {
    stop();
}

void DisplayBrightnessTool::start() {
    if (running_) {
        return;
    }
    running_ = true;
    lastError_.reset();
    if (keys_) {
        tap_ = EventTap::create(platform_.events, {EventType::systemDefined},
                                [this](EventType, Event& event) { return handle(event); });
        if (!tap_) {
            lastError_ = kNoTap;
        }
    }
    reconfiguration_ = platform_.displayConfiguration.observeReconfiguration([this] { probe(); });
    probe();
}

void DisplayBrightnessTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    tap_.reset();
    reconfiguration_.cancel();
    replyTimer_.cancel();
    putBack();
    screens_.clear();
    lastError_.reset();
    publish();
}

void DisplayBrightnessTool::tidy() {
    if (!dictionary(platform_.preferences, kOriginalsKey).empty()) {
        putBackDdc(platform_.displayControl.displays());
    }
}

void DisplayBrightnessTool::fail(const std::string& what, int status) {
    char code[16];
    std::snprintf(code, sizeof code, "0x%X", static_cast<unsigned>(status));
    lastError_ = what + " failed (status " + code + ")";
}

// Asks every external display for its brightness; the answers are read together once the
// displays have had time to prepare them.
void DisplayBrightnessTool::probe() {
    replyTimer_.cancel();
    screens_.clear();
    DisplayControl& control = platform_.displayControl;
    for (const auto& display : control.displays()) {
        if (display.builtIn) {
            continue;  // the system's own keys and slider handle it
        }
        Screen screen{display, Method::probing, 0, 1, {}};
        const int status = control.writeI2C(display.id, DdcPacket::kChip, DdcPacket::kHostAddress,
                                            DdcPacket::getVCP(DdcPacket::kBrightness));
        if (status != 0) {
            useGamma(screen);
        }
        screens_.push_back(std::move(screen));
    }
    const bool waiting = std::any_of(screens_.begin(), screens_.end(),
                                     [](const Screen& s) { return s.method == Method::probing; });
    if (waiting) {
        replyTimer_ = platform_.scheduler.after(kReplyDelay, [this] { readReplies(); });
    }
    publish();
}

void DisplayBrightnessTool::readReplies() {
    for (auto& screen : screens_) {
        if (screen.method != Method::probing) {
            continue;
        }
        std::vector<std::uint8_t> bytes(DdcPacket::kReplySize);
        const int status = platform_.displayControl.readI2C(screen.display.id, DdcPacket::kChip,
                                                            DdcPacket::kHostAddress, bytes);
        const auto value =
            status == 0 ? DdcPacket::reply(bytes, DdcPacket::kBrightness) : std::nullopt;
        if (value) {
            screen.method = Method::ddc;
            screen.maximum = value->maximum;
            screen.level = std::min(1.0, static_cast<double>(value->current) / value->maximum);
        } else {
            useGamma(screen);
        }
    }
    publish();
}

void DisplayBrightnessTool::useGamma(Screen& screen) {
    const int status = platform_.displayControl.gammaTable(screen.display.id, screen.original);
    if (status != 0 || screen.original.red.empty()) {
        screen.method = Method::none;
        fail("Reading the colours of " + screen.display.name, status);
        return;
    }
    screen.method = Method::gamma;
    const auto levels = dictionary(platform_.preferences, kLevelsKey);
    const auto stored = levels.find(screen.display.key);
    if (stored != levels.end() && stored->second.number()) {
        const double level = std::clamp(*stored->second.number(), 0.0, 1.0);
        if (level < 1) {
            screen.level = level;
            if (const int set = platform_.displayControl.setGammaTable(
                    screen.display.id, BrightnessKeys::dimmed(screen.original, level));
                set != 0) {
                fail("Dimming " + screen.display.name, set);
            } else {
                gammaChanged_ = true;
            }
        }
    }
}

void DisplayBrightnessTool::setLevel(std::uint32_t display, double level) {
    const auto found = std::find_if(screens_.begin(), screens_.end(),
                                    [display](const Screen& s) { return s.display.id == display; });
    if (found == screens_.end() || !std::isfinite(level)) {
        return;
    }
    Screen& screen = *found;
    level = std::clamp(level, 0.0, 1.0);
    DisplayControl& control = platform_.displayControl;
    if (screen.method == Method::ddc) {
        auto originals = dictionary(platform_.preferences, kOriginalsKey);
        if (!originals.contains(screen.display.key)) {
            originals.emplace(screen.display.key, static_cast<std::int64_t>(
                                                      std::lround(screen.level * screen.maximum)));
            platform_.preferences.set(kOriginalsKey, PreferenceValue(std::move(originals)));
        }
        const auto value = static_cast<std::uint16_t>(std::lround(level * screen.maximum));
        if (const int status =
                control.writeI2C(screen.display.id, DdcPacket::kChip, DdcPacket::kHostAddress,
                                 DdcPacket::setVCP(DdcPacket::kBrightness, value));
            status != 0) {
            fail("Changing the brightness of " + screen.display.name, status);
            publish();
            return;
        }
    } else if (screen.method == Method::gamma) {
        if (const int status = control.setGammaTable(
                screen.display.id, BrightnessKeys::dimmed(screen.original, level));
            status != 0) {
            fail("Dimming " + screen.display.name, status);
            publish();
            return;
        }
        gammaChanged_ = true;
        auto levels = dictionary(platform_.preferences, kLevelsKey);
        levels.insert_or_assign(screen.display.key, level);
        platform_.preferences.set(kLevelsKey, PreferenceValue(std::move(levels)));
    } else {
        return;
    }
    screen.level = level;
    publish();
}

bool DisplayBrightnessTool::handle(Event& event) {
    const auto press = BrightnessKeys::press(event.systemSubtype(), event.systemData1());
    if (!press) {
        return true;
    }
    const Point mouse = platform_.screens.mouseLocation();
    const auto under = std::find_if(screens_.begin(), screens_.end(), [&](const Screen& s) {
        return s.display.frame.contains(mouse) &&
               (s.method == Method::ddc || s.method == Method::gamma);
    });
    if (under == screens_.end()) {
        return true;  // the built-in display, or one we cannot change: the system's business
    }
    if (!press->down) {
        return false;  // its key down was ours
    }
    const bool fine =
        (event.flags() & modifierFlag::mask) == (modifierFlag::option | modifierFlag::shift);
    const double level = BrightnessKeys::step(under->level, press->up, fine);
    setLevel(under->display.id, level);
    platform_.input.hud.show({"sun.max.fill", "Brightness", under->level}, false, kCardDuration);
    return false;
}

void DisplayBrightnessTool::putBack() {
    if (gammaChanged_) {
        platform_.displayControl.restoreColorSyncSettings();
        gammaChanged_ = false;
    }
    std::vector<DisplayControl::Display> displays;
    for (const auto& screen : screens_) {
        displays.push_back(screen.display);
    }
    putBackDdc(displays);
}

// Displays that are not connected now keep their backup for a later stop or launch.
void DisplayBrightnessTool::putBackDdc(const std::vector<DisplayControl::Display>& displays) {
    auto originals = dictionary(platform_.preferences, kOriginalsKey);
    if (originals.empty()) {
        return;
    }
    for (const auto& display : displays) {
        const auto original = originals.find(display.key);
        if (original == originals.end() || !original->second.integer()) {
            continue;
        }
        const auto value = static_cast<std::uint16_t>(
            std::clamp<std::int64_t>(*original->second.integer(), 0, 0xFFFF));
        if (platform_.displayControl.writeI2C(display.id, DdcPacket::kChip, DdcPacket::kHostAddress,
                                              DdcPacket::setVCP(DdcPacket::kBrightness, value)) ==
            0) {
            originals.erase(original);
        }
    }
    if (originals.empty()) {
        platform_.preferences.remove(kOriginalsKey);
    } else {
        platform_.preferences.set(kOriginalsKey, PreferenceValue(std::move(originals)));
    }
}

void DisplayBrightnessTool::setUsesKeys(bool on) {
    keys_ = on;
    platform_.preferences.set(kKeysKey, PreferenceValue(on));
    if (running_) {
        // The keys are the only part that changes; the displays keep their levels.
        tap_.reset();
        if (on) {
            tap_ = EventTap::create(platform_.events, {EventType::systemDefined},
                                    [this](EventType, Event& event) { return handle(event); });
        }
        lastError_ = on && !tap_ ? std::optional<std::string>(kNoTap) : std::nullopt;
    }
    publish();
}

SettingsPage DisplayBrightnessTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back({SettingsRow::Toggle{"Use the brightness keys", [this] { return keys_; },
                                                [this](bool on) { setUsesKeys(on); },
                                                "The keys change the display the pointer is on."},
                            {}});
    for (const auto& screen : screens_) {
        if (screen.method != Method::ddc && screen.method != Method::gamma) {
            continue;
        }
        const std::uint32_t id = screen.display.id;
        const std::string label =
            screen.display.name + (screen.method == Method::gamma ? " (dimmed by Quorvane)" : "");
        section.rows.push_back(
            {SettingsRow::Slider{
                 label, 0, 1, 0,
                 [this, id] {
                     for (const auto& s : screens_) {
                         if (s.display.id == id) {
                             return s.level;
                         }
                     }
                     return 0.0;
                 },
                 [this, id](double level) { setLevel(id, level); },
                 [](double level) { return std::to_string(std::lround(level * 100)) + "%"; }},
             {}});
    }
    if (running_ && screens_.empty()) {
        section.rows.push_back({SettingsRow::Note{"No external display is connected."}, {}});
    }
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{"Most monitors let Quorvane change their backlight over the cable "
                           "(DDC/CI, sometimes switched off in the monitor's own menu). Apple "
                           "documents no way to do this, so Quorvane uses an interface macOS "
                           "keeps for itself, and a macOS update may take it away. Monitors that "
                           "don't answer, TVs and some HDMI connections are dimmed by darkening "
                           "the picture instead, which saves no power. Turning this off gives "
                           "every display back the brightness and colours it had before."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> DisplayBrightnessTool::control() {
    return ToolControl{"Display Brightness", "sun.max.fill", [this] { return running_; }, nullptr};
}

}  // namespace quorvane
