#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/Rect.hpp"

namespace quorvane {

// The displays' own controls: the DDC/CI channel over each external display's I2C bus, and the
// gamma tables the window server applies to what it sends. Statuses are IOReturn or CGError,
// 0 for success; kUnsupported where this system offers no such channel.
class DisplayControl {
public:
    static constexpr int kUnsupported = -1;

    struct Display {
        std::uint32_t id = 0;  // CGDirectDisplayID
        // The same identifier DisplayConfiguration gives, stable across restarts.
        std::string key;
        std::string name;
        bool builtIn = false;
        Rect frame;  // screen coordinates, as Screens gives them
        friend bool operator==(const Display&, const Display&) = default;
    };
    // One transfer table per channel, values 0…1.
    struct GammaTable {
        std::vector<float> red;
        std::vector<float> green;
        std::vector<float> blue;
        // Every channel `count` entries long; entries added are 0.
        void resize(std::size_t count) {
            red.resize(count);
            green.resize(count);
            blue.resize(count);
        }
        // The entries all three channels have.
        std::size_t size() const { return std::min({red.size(), green.size(), blue.size()}); }
        friend bool operator==(const GammaTable&, const GammaTable&) = default;
    };

    virtual ~DisplayControl() = default;

    virtual std::vector<Display> displays() = 0;
    // A write to the display's I2C bus at a chip address, starting at a register (for DDC/CI:
    // chip 0x37, register 0x51, the host's address).
    virtual int writeI2C(std::uint32_t display, std::uint8_t chip, std::uint8_t offset,
                         const std::vector<std::uint8_t>& data) = 0;
    // Reads data.size() bytes back.
    virtual int readI2C(std::uint32_t display, std::uint8_t chip, std::uint8_t offset,
                        std::vector<std::uint8_t>& data) = 0;
    virtual int gammaTable(std::uint32_t display, GammaTable& table) = 0;
    virtual int setGammaTable(std::uint32_t display, const GammaTable& table) = 0;
    // Every display back to the gamma of its colour profile.
    virtual void restoreColorSyncSettings() = 0;
};

}  // namespace quorvane
