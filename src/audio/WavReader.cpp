#include "audio/WavReader.hpp"

#include <bit>
#include <cerrno>
#include <cstring>
#include <string>

#include "audio/WavBytes.hpp"
#include "audio/WavError.hpp"

namespace quorvane {

namespace {

constexpr std::uint16_t kFormatPCM = 1;
constexpr std::uint16_t kFormatFloat = 3;
constexpr std::uint16_t kFormatExtensible = 0xFFFE;
// A format chunk is 16, 18 or 40 bytes; anything much longer is a damaged header.
constexpr std::uint32_t kLongestFormatChunk = 1024;

std::string chunkName(const std::uint8_t* id) {
    std::string name = "'";
    for (int i = 0; i < 4; ++i) {
        const auto c = static_cast<char>(id[i]);
        name += (c >= ' ' && c <= '~') ? c : '?';
    }
    return name + "'";
}

WavFormat::Encoding encodingOf(std::uint16_t tag, std::uint16_t bits) {
    if (tag == kFormatPCM && (bits == 16 || bits == 24 || bits == 32)) {
        return bits == 16   ? WavFormat::Encoding::pcm16
               : bits == 24 ? WavFormat::Encoding::pcm24
                            : WavFormat::Encoding::pcm32;
    }
    if (tag == kFormatFloat && bits == 32) {
        return WavFormat::Encoding::float32;
    }
    if (tag == kFormatPCM || tag == kFormatFloat) {
        throw WavError("unsupported encoding: " + std::to_string(bits) + "-bit " +
                       (tag == kFormatPCM ? "integer" : "float") +
                       " samples (16-, 24- and 32-bit integer and 32-bit float are supported)");
    }
    throw WavError("unsupported encoding: WAV format " + std::to_string(tag) +
                   " (only uncompressed PCM and float are supported)");
}

}  // namespace

WavReader::WavReader(const std::filesystem::path& path) : file_(path, "rb") {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (error) {
        throw WavError("cannot read " + path.string() + ": " + error.message());
    }
    try {
        readHeader(size);
    } catch (const WavError& problem) {
        throw WavError(path.string() + ": " + problem.what());
    }
}

void WavReader::readHeader(std::uint64_t fileSize) {
    std::uint8_t riff[12];
    if (fileSize < sizeof riff || std::fread(riff, 1, sizeof riff, file_.get()) != sizeof riff ||
        std::memcmp(riff, "RIFF", 4) != 0 || std::memcmp(riff + 8, "WAVE", 4) != 0) {
        throw WavError("not a WAV file");
    }
    std::uint64_t position = sizeof riff;
    bool haveFormat = false;
    std::uint16_t blockAlign = 0;
    for (;;) {
        std::uint8_t header[8];
        if (position + sizeof header > fileSize ||
            std::fread(header, 1, sizeof header, file_.get()) != sizeof header) {
            throw WavError(haveFormat ? "truncated: the file ends before its sample data"
                                      : "truncated: the file ends before its format");
        }
        position += sizeof header;
        const std::uint32_t size = wav::le32(header + 4);
        const bool isData = std::memcmp(header, "data", 4) == 0;
        if (position + size > fileSize) {
            throw WavError(isData ? "truncated: the sample data runs past the end of the file"
                                  : "the " + chunkName(header) + " chunk claims " +
                                        std::to_string(size) + " bytes, more than the file holds");
        }
        if (isData) {
            if (!haveFormat) {
                throw WavError("the sample data comes before the format");
            }
            if (size % blockAlign != 0) {
                throw WavError("truncated: the sample data ends in the middle of a frame");
            }
            format_.frameCount = size / blockAlign;
            framesLeft_ = format_.frameCount;
            return;
        }
        if (std::memcmp(header, "fmt ", 4) == 0) {
            if (haveFormat || size < 16 || size > kLongestFormatChunk) {
                throw WavError("damaged format chunk (" + std::to_string(size) + " bytes)");
            }
            std::vector<std::uint8_t> chunk(size);
            if (std::fread(chunk.data(), 1, size, file_.get()) != size) {
                throw WavError(file_.failure("read"));
            }
            std::uint16_t tag = wav::le16(chunk.data());
            if (tag == kFormatExtensible && size >= 40) {
                tag = wav::le16(chunk.data() + 24);  // the sub-format's first two bytes
            }
            const std::uint16_t channels = wav::le16(chunk.data() + 2);
            const std::uint32_t rate = wav::le32(chunk.data() + 4);
            blockAlign = wav::le16(chunk.data() + 12);
            const std::uint16_t bits = wav::le16(chunk.data() + 14);
            format_.encoding = encodingOf(tag, bits);
            if (channels == 0 || channels > kMaxChannels) {
                throw WavError(std::to_string(channels) + " channels (1 to 8 are supported)");
            }
            if (rate == 0) {
                throw WavError("a sample rate of 0");
            }
            format_.channels = channels;
            format_.sampleRate = rate;
            if (blockAlign != format_.bytesPerFrame()) {
                throw WavError("damaged format chunk (" + std::to_string(blockAlign) +
                               " bytes per frame)");
            }
            haveFormat = true;
            position += size;
        } else {
            position += size;
        }
        // Chunks are padded to an even length.
        position += size % 2;
        if (position > fileSize || std::fseek(file_.get(), static_cast<long>(position), SEEK_SET)) {
            throw WavError("truncated: the file ends inside a chunk");
        }
    }
}

std::size_t WavReader::read(std::span<float> out, std::size_t frames) {
    const std::size_t count =
        static_cast<std::size_t>(std::min<std::uint64_t>(frames, framesLeft_));
    if (count == 0) {
        return 0;
    }
    const std::size_t sampleBytes = format_.bytesPerSample();
    bytes_.resize(count * format_.bytesPerFrame());
    errno = 0;
    if (std::fread(bytes_.data(), 1, bytes_.size(), file_.get()) != bytes_.size()) {
        throw WavError(std::ferror(file_.get()) ? file_.failure("read")
                                                : "truncated: the file ended early");
    }
    const std::uint8_t* p = bytes_.data();
    for (std::size_t i = 0; i < count * format_.channels; ++i, p += sampleBytes) {
        switch (format_.encoding) {
            case WavFormat::Encoding::pcm16:
                out[i] = static_cast<float>(static_cast<std::int16_t>(wav::le16(p))) / 32768.0f;
                break;
            case WavFormat::Encoding::pcm24: {
                // The three bytes go to the top of a 32-bit word, which keeps the sign.
                const auto word =
                    static_cast<std::int32_t>((static_cast<std::uint32_t>(p[0]) << 8) |
                                              (static_cast<std::uint32_t>(p[1]) << 16) |
                                              (static_cast<std::uint32_t>(p[2]) << 24));
                out[i] = static_cast<float>(word / 2147483648.0);
                break;
            }
            case WavFormat::Encoding::pcm32:
                out[i] = static_cast<float>(static_cast<std::int32_t>(wav::le32(p)) / 2147483648.0);
                break;
            case WavFormat::Encoding::float32:
                out[i] = std::bit_cast<float>(wav::le32(p));
                break;
        }
    }
    framesLeft_ -= count;
    return count;
}

}  // namespace quorvane
