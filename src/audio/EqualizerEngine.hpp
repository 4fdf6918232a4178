#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <span>

namespace quorvane {

// The equalizer's coefficients, shared by every tap's real-time procedure without a lock. One
// fixed block of floats holds the active set's index, the enabled flag and two coefficient sets;
// the main thread writes only the inactive set and then publishes it by flipping the index, so
// a reader that takes the index once per cycle always sees one whole set.
class EqualizerEngine {
public:
    static constexpr std::size_t kBands = 10;
    // The preamp factor, then (b0, b1, b2, a1, a2) per band from low to high.
    static constexpr std::size_t kSetSize = 1 + 5 * kBands;
    static constexpr std::size_t kBlockSize = 2 + 2 * kSetSize;
    static constexpr std::array<double, kBands> kCentreFrequencies = {
        32, 64, 125, 250, 500, 1000, 2000, 4000, 8000, 16000};
    // Below this many decibels a band or the preamp counts as flat.
    static constexpr double kFlatThreshold = 0.05;

    using CoefficientSet = std::array<float, kSetSize>;

    // The one engine of the application, created on first use.
    static EqualizerEngine& shared();
    // Disabled, with both sets passing the signal unchanged.
    EqualizerEngine();
    EqualizerEngine(const EqualizerEngine&) = delete;
    EqualizerEngine& operator=(const EqualizerEngine&) = delete;

    // Main thread: computes the inactive set for these gains (dB, low band first; missing bands
    // are flat), preamp (dB) and sample rate (Hz), and publishes it.
    void update(std::span<const double> gains, double preampDB, double sampleRate);
    static bool isFlat(std::span<const double> gains, double preampDB);

    // Real-time side: whether to equalize at all, and a copy of the active set.
    bool isEnabled() const { return block_[1].load(std::memory_order_relaxed) != 0.0f; }
    void copyActiveSet(CoefficientSet& set) const;

    // The raw block, for inspection.
    float value(std::size_t index) const { return block_[index].load(std::memory_order_relaxed); }

private:
    static_assert(std::atomic<float>::is_always_lock_free);
    alignas(64) std::array<std::atomic<float>, kBlockSize> block_;
};

}  // namespace quorvane
