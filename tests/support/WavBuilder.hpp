#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace quorvane {

// Builds WAV files byte by byte, so tests can write any header, sane or not.
struct WavBuilder {
    std::vector<std::uint8_t> bytes;

    WavBuilder& text(const std::string& s) { return raw({s.begin(), s.end()}); }
    WavBuilder& u16(std::uint32_t v) { return raw({std::uint8_t(v), std::uint8_t(v >> 8)}); }
    WavBuilder& u32(std::uint32_t v) { return u16(v & 0xFFFF).u16(v >> 16); }
    WavBuilder& raw(const std::vector<std::uint8_t>& data) {
        bytes.insert(bytes.end(), data.begin(), data.end());
        return *this;
    }
    WavBuilder& data(const std::vector<std::uint8_t>& samples) {
        return text("data").u32(static_cast<std::uint32_t>(samples.size())).raw(samples);
    }
    // "RIFF", a size, "WAVE", then a plain format chunk.
    static WavBuilder header(std::uint16_t tag, std::uint16_t channels, std::uint32_t rate,
                             std::uint16_t bits) {
        WavBuilder b;
        b.text("RIFF").u32(0).text("WAVE").text("fmt ").u32(16).u16(tag).u16(channels).u32(rate);
        return b.u32(rate * channels * bits / 8).u16(channels * bits / 8).u16(bits);
    }
    void save(const std::filesystem::path& path) const {
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }
};

}  // namespace quorvane
