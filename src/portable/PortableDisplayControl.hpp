#pragma once

#include "platform/DisplayControl.hpp"

namespace quorvane {

// The command line sees no displays, and controls none.
class PortableDisplayControl : public DisplayControl {
public:
    std::vector<Display> displays() override { return {}; }
    int writeI2C(std::uint32_t, std::uint8_t, std::uint8_t,
                 const std::vector<std::uint8_t>&) override {
        return kUnsupported;
    }
    int readI2C(std::uint32_t, std::uint8_t, std::uint8_t, std::vector<std::uint8_t>&) override {
        return kUnsupported;
    }
    int gammaTable(std::uint32_t, GammaTable&) override { return kUnsupported; }
    int setGammaTable(std::uint32_t, const GammaTable&) override { return kUnsupported; }
    void restoreColorSyncSettings() override {}
};

}  // namespace quorvane
