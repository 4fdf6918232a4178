#pragma once

#include <array>
#include <atomic>
#include <cstddef>

namespace quorvane {

// The ten floats through which the main thread tells a tap's real-time procedure the wanted
// gain, and in which the procedure keeps its own state between cycles. The main thread writes
// only the target; the procedure writes the rest. Each slot is a lone aligned float, so one
// store is the whole exchange and no lock is needed. Never moved once created.
class GainControl {
public:
    static constexpr std::size_t kTarget = 0;
    static constexpr std::size_t kCurrent = 1;
    static constexpr std::size_t kFirstEnvelope = 2;
    // Output buffers past this many keep no limiter envelope between cycles.
    static constexpr std::size_t kEnvelopeCount = 8;

    explicit GainControl(float gain) {
        slots_[kTarget].store(gain, std::memory_order_relaxed);
        slots_[kCurrent].store(gain, std::memory_order_relaxed);
        for (std::size_t k = 0; k < kEnvelopeCount; ++k) {
            slots_[kFirstEnvelope + k].store(0.0f, std::memory_order_relaxed);
        }
    }
    GainControl(const GainControl&) = delete;
    GainControl& operator=(const GainControl&) = delete;

    void setTarget(float gain) { slots_[kTarget].store(gain, std::memory_order_relaxed); }
    float target() const { return slots_[kTarget].load(std::memory_order_relaxed); }

    // The real-time procedure's side.
    float current() const { return slots_[kCurrent].load(std::memory_order_relaxed); }
    void setCurrent(float gain) { slots_[kCurrent].store(gain, std::memory_order_relaxed); }
    float envelope(std::size_t buffer) const {
        return slots_[kFirstEnvelope + buffer].load(std::memory_order_relaxed);
    }
    void setEnvelope(std::size_t buffer, float value) {
        slots_[kFirstEnvelope + buffer].store(value, std::memory_order_relaxed);
    }

private:
    static_assert(std::atomic<float>::is_always_lock_free);
    alignas(64) std::array<std::atomic<float>, kFirstEnvelope + kEnvelopeCount> slots_;
};

}  // namespace quorvane
