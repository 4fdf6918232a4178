#include "platform/SmcChargingPlan.hpp"

#include <array>

#include "platform/SmcParameterBlock.hpp"

namespace quorvane {

namespace {

// unconfirmed: check on a Mac first (names, sizes and values).
// CHTE, on current Apple silicon firmware: four bytes, 0 to charge, 1 to hold, the low byte
// first.
constexpr std::uint32_t kChargeInhibitKey = fourCharCode("CHTE");
constexpr std::size_t kChargeInhibitSize = 4;
constexpr std::uint8_t kChargeInhibitHold = 1;
// CH0B and CH0C, on older firmware: one byte each, 0 to charge, 2 to hold.
constexpr std::array<std::uint32_t, 2> kLegacyChargeKeys = {fourCharCode("CH0B"),
                                                            fourCharCode("CH0C")};
constexpr std::size_t kLegacyChargeSize = 1;
constexpr std::uint8_t kLegacyChargeHold = 2;

}  // namespace

std::optional<std::vector<SmcChargingPlan::Write>> SmcChargingPlan::writes(bool enabled,
                                                                           const KeySize& keySize) {
    if (keySize(kChargeInhibitKey) == kChargeInhibitSize) {
        return std::vector<Write>{
            {kChargeInhibitKey, {enabled ? std::uint8_t{0} : kChargeInhibitHold, 0, 0, 0}}};
    }
    std::vector<Write> result;
    for (const std::uint32_t key : kLegacyChargeKeys) {
        if (keySize(key) != kLegacyChargeSize) {
            return std::nullopt;
        }
        result.push_back({key, {enabled ? std::uint8_t{0} : kLegacyChargeHold}});
    }
    return result;
}

bool SmcChargingPlan::apply(bool enabled, const KeySize& keySize,
                            const std::function<bool(const Write&)>& write) {
    const auto planned = writes(enabled, keySize);
    if (!planned) {
        return false;
    }
    bool written = true;
    for (const auto& each : *planned) {
        written = write(each) && written;
    }
    return written;
}

}  // namespace quorvane
