#pragma once

#include "platform/DisplayControl.hpp"

namespace quorvane {

// NSScreen's displays, Quartz's gamma tables, and DDC over the external displays' I2C buses
// through the IOAVService calls macOS uses itself on Apple silicon. Those are not public: they
// are looked up at run time, and every call answers kUnsupported when they are missing.
class MacDisplayControl final : public DisplayControl {
public:
    std::vector<Display> displays() override;
    int writeI2C(std::uint32_t display, std::uint8_t chip, std::uint8_t offset,
                 const std::vector<std::uint8_t>& data) override;
    int readI2C(std::uint32_t display, std::uint8_t chip, std::uint8_t offset,
                std::vector<std::uint8_t>& data) override;
    int gammaTable(std::uint32_t display, GammaTable& table) override;
    int setGammaTable(std::uint32_t display, const GammaTable& table) override;
    void restoreColorSyncSettings() override;
};

}  // namespace quorvane
