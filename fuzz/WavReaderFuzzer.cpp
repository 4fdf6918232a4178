// Feeds arbitrary bytes to the WAV reader as a file. It either refuses the header with a
// WavError, or then reads exactly the frames the header promised without any error, integer
// samples within −1…1.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "audio/WavError.hpp"
#include "audio/WavReader.hpp"

using quorvane::WavError;
using quorvane::WavFormat;
using quorvane::WavReader;

namespace {

void check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

// The reader takes a path, so each input goes through one scratch file of this process.
const std::filesystem::path& scratchPath() {
    static const std::filesystem::path path =
        std::filesystem::temp_directory_path() /
        ("quorvane-wav-fuzz-" + std::to_string(::getpid()) + ".wav");
    return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto& path = scratchPath();
    std::FILE* file = std::fopen(path.c_str(), "wb");
    check(file != nullptr);
    check(std::fwrite(data, 1, size, file) == size);
    check(std::fclose(file) == 0);

    std::optional<WavReader> reader;
    try {
        reader.emplace(path);
    } catch (const WavError&) {
        return 0;
    }
    // Past the header nothing may fail: any exception from here on ends the run as a finding.
    const WavFormat format = reader->format();
    check(format.channels >= 1 && format.channels <= WavReader::kMaxChannels);
    check(format.sampleRate > 0);
    check(format.frameCount * format.bytesPerFrame() <= size);
    // An odd number of frames at a time, so reads end inside the data as well as at its end.
    constexpr std::size_t kChunk = 37;
    std::vector<float> samples(kChunk * format.channels);
    std::uint64_t frames = 0;
    while (const std::size_t count = reader->read(samples, kChunk)) {
        check(count <= kChunk);
        frames += count;
        if (format.encoding != WavFormat::Encoding::float32) {
            for (std::size_t i = 0; i < count * format.channels; ++i) {
                check(samples[i] >= -1.0f && samples[i] <= 1.0f);
            }
        }
    }
    check(frames == format.frameCount);
    return 0;
}
