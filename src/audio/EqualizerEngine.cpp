#include "audio/EqualizerEngine.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvane {

namespace {

// Every band is a peaking section of Q 1.41: the sine is divided by 2 × Q.
constexpr double kTwiceQ = 2.82;
// Bands above this fraction of the sample rate are moved down to it, short of Nyquist.
constexpr double kHighestCentre = 0.45;
// What a rate that is not a positive number is taken to be.
constexpr double kFallbackRate = 48000;

}  // namespace

EqualizerEngine& EqualizerEngine::shared() {
    static EqualizerEngine engine;
    return engine;
}

EqualizerEngine::EqualizerEngine() {
    for (auto& slot : block_) {
        slot.store(0.0f, std::memory_order_relaxed);
    }
    for (std::size_t set = 0; set < 2; ++set) {
        const std::size_t base = 2 + set * kSetSize;
        block_[base].store(1.0f, std::memory_order_relaxed);
        for (std::size_t band = 0; band < kBands; ++band) {
            block_[base + 1 + 5 * band].store(1.0f, std::memory_order_relaxed);
        }
    }
}

bool EqualizerEngine::isFlat(std::span<const double> gains, double preampDB) {
    const auto bands = gains.first(std::min(gains.size(), kBands));
    return std::none_of(bands.begin(), bands.end(),
                        [](double gain) { return std::abs(gain) >= kFlatThreshold; }) &&
           std::abs(preampDB) < kFlatThreshold;
}

void EqualizerEngine::update(std::span<const double> gains, double preampDB, double sampleRate) {
    const double rate = sampleRate > 0 ? sampleRate : kFallbackRate;
    // Only the main thread writes the index, so its own last store is what it reads here.
    const std::size_t target = block_[0].load(std::memory_order_relaxed) != 0.0f ? 0 : 1;
    const std::size_t base = 2 + target * kSetSize;
    const auto put = [&](std::size_t offset, double value) {
        block_[base + offset].store(static_cast<float>(value), std::memory_order_relaxed);
    };
    put(0, std::pow(10.0, preampDB / 20.0));
    for (std::size_t band = 0; band < kBands; ++band) {
        const double gain = band < gains.size() ? gains[band] : 0.0;
        const double a = std::pow(10.0, gain / 40.0);
        const double f0 = std::min(kCentreFrequencies[band], kHighestCentre * rate);
        const double w0 = 2.0 * std::numbers::pi * f0 / rate;
        const double alpha = std::sin(w0) / kTwiceQ;
        const double d = 1.0 + alpha / a;
        const double b1 = -2.0 * std::cos(w0) / d;
        put(1 + 5 * band, (1.0 + alpha * a) / d);
        put(2 + 5 * band, b1);
        put(3 + 5 * band, (1.0 - alpha * a) / d);
        put(4 + 5 * band, b1);
        put(5 + 5 * band, (1.0 - alpha / a) / d);
    }
    block_[0].store(static_cast<float>(target), std::memory_order_release);
    block_[1].store(isFlat(gains, preampDB) ? 0.0f : 1.0f, std::memory_order_relaxed);
}

void EqualizerEngine::copyActiveSet(CoefficientSet& set) const {
    const std::size_t base = 2 + (block_[0].load(std::memory_order_acquire) != 0.0f ? kSetSize : 0);
    for (std::size_t i = 0; i < kSetSize; ++i) {
        set[i] = block_[base + i].load(std::memory_order_relaxed);
    }
}

}  // namespace quorvane
