#include <cmath>
#include <cstdio>

#include "tools/sound/EqualizerTool.hpp"

namespace quorvane {

namespace {

constexpr std::array<const char*, EqualizerEngine::kBands> kBandLabels = {
    "32 Hz", "64 Hz", "125 Hz", "250 Hz", "500 Hz", "1 kHz", "2 kHz", "4 kHz", "8 kHz", "16 kHz"};

std::string decibels(double value) {
    if (std::abs(value) < 0.05) {
        return "0 dB";
    }
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.1f", std::abs(value));
    return (value > 0 ? "+" : "−") + std::string(digits) + " dB";
}

SettingsRow::Slider gainSlider(std::string label, std::function<double()> get,
                               std::function<void(double)> set) {
    return {std::move(label),
            -EqualizerTool::kGainLimit,
            EqualizerTool::kGainLimit,
            EqualizerTool::kGainStep,
            std::move(get),
            std::move(set),
            decibels};
}

}  // namespace

SettingsPage EqualizerTool::menuPage() {
    std::vector<SettingsRow::ChoiceOption> presets;
    for (const EqualizerPreset& preset : EqualizerPreset::all()) {
        presets.push_back({preset.name, preset.name});
    }
    SettingsSection choice{
        "",
        {{SettingsRow::Choice{"Preset", std::move(presets), [this] { return presetName(); },
                              [this](const std::string& name) { applyPreset(name); }},
          {}}},
        ""};
    // Renderers build the page again whenever the tool publishes a change.
    choice.rows.push_back(SettingsRow::errorWarning(lastError_));

    SettingsSection bands{"Bands", {}, ""};
    for (std::size_t band = 0; band < gains_.size(); ++band) {
        bands.rows.push_back({gainSlider(
                                  kBandLabels[band], [this, band] { return gains_[band]; },
                                  [this, band](double value) { setGain(band, value); }),
                              {}});
    }
    bands.rows.push_back(
        {gainSlider(
             "Preamp", [this] { return preamp_; }, [this](double value) { setPreamp(value); }),
         {}});
    bands.rows.push_back({SettingsRow::Button{"Reset to Flat", [this] { resetToFlat(); }}, {}});

    SettingsPage page;
    page.add(std::move(choice)).add(std::move(bands));
    return page;
}

SettingsPage EqualizerTool::settingsPage() {
    SettingsPage page = menuPage();
    page.add({"", {{SettingsRow::Note{kHelp}, {}}}, ""});
    return page;
}

std::optional<ToolControl> EqualizerTool::control() {
    // Its popover is the menu page; the tile shows as on while the sound is being changed.
    return ToolControl{"Equalizer", identity().systemImage, [this] { return !isFlat(); }, {}};
}

}  // namespace quorvane
