#include "audio/EqualizerEngine.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "audio/EqualizerPreset.hpp"
#include "audio/EqualizerState.hpp"
#include "audio/GainControl.hpp"
#include "audio/RenderTap.hpp"
#include "support/AudioBuffers.hpp"

namespace quorvane {
namespace {

using Section = std::array<float, 5>;

Section section(const EqualizerEngine& engine, std::size_t band) {
    EqualizerEngine::CoefficientSet set;
    engine.copyActiveSet(set);
    return {set[1 + 5 * band], set[2 + 5 * band], set[3 + 5 * band], set[4 + 5 * band],
            set[5 + 5 * band]};
}

void expectNear(const Section& actual, const Section& expected) {
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_NEAR(actual[i], expected[i], 2e-7f) << "coefficient " << i;
    }
}

TEST(EqualizerEngine, FlatIsDisabledAndUpdatesPublishTheInactiveSet) {
    EqualizerEngine engine;
    EXPECT_FALSE(engine.isEnabled());
    EXPECT_EQ(section(engine, 4), (Section{1, 0, 0, 0, 0})) << "both sets start as identity";
    const std::vector<double> flat(10, 0.0);
    engine.update(flat, -0.04, 48000);
    EXPECT_FALSE(engine.isEnabled()) << "-0.04 dB counts as flat";
    engine.update(flat, -0.05, 48000);
    EXPECT_TRUE(engine.isEnabled());
    engine.update(std::vector<double>{0.049, -0.049}, 0.0, 48000);
    EXPECT_FALSE(engine.isEnabled());

    engine.update(EqualizerPreset::named("Bass Boost")->gains, 0.0, 48000);
    const std::size_t active = engine.value(0) != 0 ? 1 : 0;
    const float boosted = engine.value(2 + 51 * active + 1);
    EXPECT_GT(boosted, 1.0f);
    engine.update(std::vector<double>{}, 3.0, 48000);
    EXPECT_NE(engine.value(0) != 0 ? 1u : 0u, active) << "the other set was written and published";
    EXPECT_EQ(engine.value(2 + 51 * active + 1), boosted) << "the retired set stays whole";
    EXPECT_EQ(section(engine, 0)[0], 1.0f) << "missing gains are flat";
}

// Values computed independently, in double precision with Python, from the same formulas.
TEST(EqualizerEngine, CoefficientsMatchAnIndependentlyComputedTable) {
    EqualizerEngine engine;
    engine.update(EqualizerPreset::named("Loudness")->gains, -6.0, 48000);
    const std::array<Section, 10> loudness48k = {{
        {1.00086594f, -1.9977572f, 0.996908784f, -1.9977572f, 0.99777472f},
        {1.00137699f, -1.99522161f, 0.993914664f, -1.99522161f, 0.99529165f},
        {1.00133204f, -1.98944473f, 0.988379061f, -1.98944473f, 0.989711046f},
        {1.0f, -1.97600257f, 0.977061152f, -1.97600257f, 0.977061152f},
        {0.997392416f, -1.94786489f, 0.954652011f, -1.94786489f, 0.952044427f},
        {1.0f, -1.89517009f, 0.911523461f, -1.89517009f, 0.911523461f},
        {1.0f, -1.76945174f, 0.831871212f, -1.76945174f, 0.831871212f},
        {1.0353328f, -1.49569607f, 0.691748261f, -1.49569607f, 0.72708112f},
        {1.11469877f, -0.803897858f, 0.493096858f, -0.803897858f, 0.607795656f},
        {1.14568281f, 0.812814236f, 0.47994563f, 0.812814236f, 0.625628471f},
    }};
    EqualizerEngine::CoefficientSet set;
    engine.copyActiveSet(set);
    EXPECT_NEAR(set[0], 0.501187205f, 1e-7f) << "preamp factor of -6 dB";
    for (std::size_t band = 0; band < 10; ++band) {
        expectNear(section(engine, band), loudness48k[band]);
    }
    // The top band stays at 16 kHz below 0.45 × the rate, and moves to 14.4 kHz at 32 kHz.
    std::vector<double> top(10, 0.0);
    top[9] = 6.0;
    engine.update(top, 0.0, 44100);
    expectNear(section(engine, 9),
               {1.15931213f, 1.09348154f, 0.520547032f, 1.09348154f, 0.679859102f});
    engine.update(top, 0.0, 32000);
    expectNear(section(engine, 9),
               {1.07165098f, 1.76517594f, 0.78436476f, 1.76517594f, 0.856015801f});
}

TEST(EqualizerEngine, AZeroDecibelSectionPassesTheSignalUnchanged) {
    EqualizerEngine engine;
    engine.update(std::vector<double>(10, 0.0), 0.1, 48000);
    for (std::size_t band = 0; band < 10; ++band) {
        const Section s = section(engine, band);
        EXPECT_TRUE(s[0] == 1.0f && s[1] == s[3] && s[2] == s[4]) << "band " << band;
    }
    GainControl control(1.0f);
    EqualizerState state;
    AudioBuffers input;
    input.add(1, 256);
    for (std::size_t f = 0; f < 256; ++f) {
        input[0][f] = 0.5f * std::sin(0.05f * static_cast<float>(f));
    }
    AudioBuffers output;
    output.add(1, 256);
    renderTap({1, &control, &state, &engine}, input.span(), output.span());
    for (std::size_t f = 0; f < 256; ++f) {
        // Not bit for bit: rounding is fed back through poles close to the unit circle (the
        // 32 Hz band), so it grows to some 1e-5, far below hearing.
        ASSERT_NEAR(output[0][f], input[0][f] * std::pow(10.0f, 0.1f / 20.0f), 1e-4f);
    }
}

}  // namespace
}  // namespace quorvane
