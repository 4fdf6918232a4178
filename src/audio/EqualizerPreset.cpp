#include "audio/EqualizerPreset.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace quorvane {

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::span<const EqualizerPreset> EqualizerPreset::all() {
    static const std::vector<EqualizerPreset> presets = {
        {"Flat", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {"Bass Boost", {6, 5, 4, 2, 0, 0, 0, 0, 0, 0}},
        {"Bass Reducer", {-6, -5, -4, -2, 0, 0, 0, 0, 0, 0}},
        {"Treble Boost", {0, 0, 0, 0, 0, 1, 2, 4, 5, 6}},
        {"Vocal", {-4, -3, -1, 0, 2, 4, 4, 3, 1, 0}},
        {"Loudness", {5, 4, 2, 0, -1, 0, 0, 2, 4, 5}},
        {"Laptop Speakers", {-4, -2, 2, 3, 2, 0, 1, 2, 2, 1}},
        {"Headphones", {2, 2, 1, 0, -1, 0, 1, 1, 2, 1}},
    };
    return presets;
}

const EqualizerPreset* EqualizerPreset::named(std::string_view name) {
    const auto presets = all();
    const auto found = std::find_if(presets.begin(), presets.end(), [&](const EqualizerPreset& p) {
        return std::equal(p.name.begin(), p.name.end(), name.begin(), name.end(),
                          [](char a, char b) { return lower(a) == lower(b); });
    });
    return found == presets.end() ? nullptr : &*found;
}

const EqualizerPreset* EqualizerPreset::matching(const Gains& gains) {
    // Slider positions are stored as they are read back, but a tiny tolerance keeps a value
    // that went through text (the command line, a hand-edited file) from turning custom.
    constexpr double kTolerance = 1e-6;
    const auto presets = all();
    const auto found = std::find_if(presets.begin(), presets.end(), [&](const EqualizerPreset& p) {
        return std::equal(p.gains.begin(), p.gains.end(), gains.begin(),
                          [&](double a, double b) { return std::abs(a - b) < kTolerance; });
    });
    return found == presets.end() ? nullptr : &*found;
}

}  // namespace quorvane
