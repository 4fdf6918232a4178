#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>

#include "audio/EqualizerEngine.hpp"

namespace quorvane {

// A named set of band gains, in dB from the lowest band up.
struct EqualizerPreset {
    using Gains = std::array<double, EqualizerEngine::kBands>;
    static constexpr const char* kCustomName = "Custom";

    std::string name;
    Gains gains{};

    // The presets in menu order; "Flat" first.
    static std::span<const EqualizerPreset> all();
    // By name, ignoring case.
    static const EqualizerPreset* named(std::string_view name);
    // The preset these gains are, or nothing when they are custom.
    static const EqualizerPreset* matching(const Gains& gains);
};

}  // namespace quorvane
