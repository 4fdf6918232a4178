#include "audio/WavWriter.hpp"

#include <bit>
#include <cerrno>
#include <limits>

#include "audio/WavBytes.hpp"
#include "audio/WavError.hpp"

namespace quorvane {

namespace {

constexpr std::uint16_t kFormatFloat = 3;
// "WAVE", the format chunk (8 + 18), the fact chunk (8 + 4), the data chunk's header.
constexpr std::uint64_t kHeaderBytes = 4 + 26 + 12 + 8;

}  // namespace

WavWriter::WavWriter(const std::filesystem::path& path, std::uint16_t channels,
                     std::uint32_t sampleRate, std::uint64_t frameCount)
    : file_(path, "wb") {
    const std::uint64_t frameBytes = std::uint64_t{channels} * 4;
    const std::uint64_t dataBytes = frameCount * frameBytes;
    if (kHeaderBytes + dataBytes > std::numeric_limits<std::uint32_t>::max() ||
        frameCount > std::numeric_limits<std::uint32_t>::max()) {
        throw WavError("the output would be too long for a WAV file (4 GB)");
    }
    std::vector<std::uint8_t> header;
    header.reserve(kHeaderBytes + 8);
    const auto tag = [&](const char* id) {
        for (int i = 0; i < 4; ++i) {
            header.push_back(static_cast<std::uint8_t>(id[i]));
        }
    };
    tag("RIFF");
    wav::put32(header, static_cast<std::uint32_t>(kHeaderBytes + dataBytes));
    tag("WAVE");
    tag("fmt ");
    wav::put32(header, 18);
    wav::put16(header, kFormatFloat);
    wav::put16(header, channels);
    wav::put32(header, sampleRate);
    wav::put32(header, static_cast<std::uint32_t>(sampleRate * frameBytes));
    wav::put16(header, static_cast<std::uint32_t>(frameBytes));
    wav::put16(header, 32);
    wav::put16(header, 0);
    // Readers expect the frame count of a non-PCM file here.
    tag("fact");
    wav::put32(header, 4);
    wav::put32(header, static_cast<std::uint32_t>(frameCount));
    tag("data");
    wav::put32(header, static_cast<std::uint32_t>(dataBytes));
    errno = 0;
    if (std::fwrite(header.data(), 1, header.size(), file_.get()) != header.size()) {
        throw WavError(file_.failure("write"));
    }
}

void WavWriter::write(std::span<const float> samples) {
    bytes_.clear();
    for (const float sample : samples) {
        wav::put32(bytes_, std::bit_cast<std::uint32_t>(sample));
    }
    errno = 0;
    if (std::fwrite(bytes_.data(), 1, bytes_.size(), file_.get()) != bytes_.size()) {
        throw WavError(file_.failure("write"));
    }
}

void WavWriter::finish() {
    errno = 0;
    file_.close();
}

}  // namespace quorvane
