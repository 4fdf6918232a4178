#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/DisplayControl.hpp"

namespace quorvane {

// Displays with a monitor behind each: one that speaks DDC/CI keeps a brightness register and
// answers "get" requests with a reply read back later; one that doesn't refuses I2C writes.
// Gamma tables are kept per display. Every DDC "set" is journalled as "set <id> <value>".
struct FakeDisplayControl : DisplayControl {
    struct Monitor {
        bool ddc = true;
        std::uint16_t brightness = 50;
        std::uint16_t maximum = 100;
        std::vector<std::uint8_t> pendingReply;
        GammaTable gamma{{0.0F, 0.5F, 1.0F}, {0.0F, 0.5F, 1.0F}, {0.0F, 0.5F, 1.0F}};
    };

    std::vector<Display> list;
    std::map<std::uint32_t, Monitor> monitors;
    std::vector<std::string> sets;
    int restores = 0;
    int writeStatus = 0;

    Display& add(std::uint32_t id, bool ddc, Rect frame, bool builtIn = false) {
        monitors[id].ddc = ddc;
        list.push_back(
            {id, "key-" + std::to_string(id), "Display " + std::to_string(id), builtIn, frame});
        return list.back();
    }

    std::vector<Display> displays() override { return list; }
    int writeI2C(std::uint32_t display, std::uint8_t chip, std::uint8_t offset,
                 const std::vector<std::uint8_t>& data) override {
        auto& monitor = monitors[display];
        if (!monitor.ddc || chip != 0x37 || offset != 0x51) {
            return static_cast<int>(0xE00002BC);  // kIOReturnError
        }
        if (writeStatus != 0) {
            return writeStatus;
        }
        std::uint8_t check = 0x6E ^ 0x51;
        for (std::size_t i = 0; i + 1 < data.size(); ++i) {
            check ^= data[i];
        }
        if (data.empty() || data.back() != check) {
            return 0;  // a garbled message is ignored, as a monitor would
        }
        if (data.size() == 4 && data[0] == 0x82 && data[1] == 0x01) {
            monitor.pendingReply = {0x6E,
                                    0x88,
                                    0x02,
                                    0x00,
                                    data[2],
                                    0x00,
                                    static_cast<std::uint8_t>(monitor.maximum >> 8),
                                    static_cast<std::uint8_t>(monitor.maximum),
                                    static_cast<std::uint8_t>(monitor.brightness >> 8),
                                    static_cast<std::uint8_t>(monitor.brightness)};
            std::uint8_t replyCheck = 0x50;
            for (const auto byte : monitor.pendingReply) {
                replyCheck ^= byte;
            }
            monitor.pendingReply.push_back(replyCheck);
        } else if (data.size() == 6 && data[0] == 0x84 && data[1] == 0x03 && data[2] == 0x10) {
            monitor.brightness = static_cast<std::uint16_t>(data[3] << 8 | data[4]);
            sets.push_back("set " + std::to_string(display) + " " +
                           std::to_string(monitor.brightness));
        }
        return 0;
    }
    int readI2C(std::uint32_t display, std::uint8_t, std::uint8_t,
                std::vector<std::uint8_t>& data) override {
        auto& monitor = monitors[display];
        if (!monitor.ddc) {
            return static_cast<int>(0xE00002BC);
        }
        std::fill(data.begin(), data.end(), 0);
        std::copy_n(monitor.pendingReply.begin(),
                    std::min(data.size(), monitor.pendingReply.size()), data.begin());
        monitor.pendingReply.clear();
        return 0;
    }
    int gammaTable(std::uint32_t display, GammaTable& table) override {
        table = monitors[display].gamma;
        return 0;
    }
    int setGammaTable(std::uint32_t display, const GammaTable& table) override {
        monitors[display].gamma = table;
        return 0;
    }
    void restoreColorSyncSettings() override {
        ++restores;
        for (auto& [id, monitor] : monitors) {
            monitor.gamma = Monitor{}.gamma;
        }
    }
};

}  // namespace quorvane
