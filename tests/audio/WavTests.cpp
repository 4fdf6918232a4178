#include <gtest/gtest.h>

#include "audio/WavError.hpp"
#include "audio/WavReader.hpp"
#include "audio/WavWriter.hpp"
#include "support/TemporaryDirectory.hpp"
#include "support/WavBuilder.hpp"

namespace quorvane {
namespace {

std::vector<float> readAll(const std::filesystem::path& path, WavFormat* format = nullptr) {
    WavReader reader(path);
    if (format) {
        *format = reader.format();
    }
    std::vector<float> all;
    std::vector<float> chunk(3 * reader.format().channels);
    while (const std::size_t frames = reader.read(chunk, 3)) {
        all.insert(all.end(), chunk.begin(), chunk.begin() + frames * reader.format().channels);
    }
    return all;
}

TEST(WavReader, ReadsEverySupportedEncodingAsFloats) {
    TemporaryDirectory dir;
    const auto file = dir / "in.wav";

    WavBuilder::header(1, 2, 44100, 16).data({0x00, 0x80, 0x00, 0x40, 0xFF, 0x7F, 0, 0}).save(file);
    WavFormat format;
    EXPECT_EQ(readAll(file, &format), (std::vector<float>{-1.0f, 0.5f, 32767 / 32768.0f, 0}));
    EXPECT_EQ(format.channels, 2);
    EXPECT_EQ(format.sampleRate, 44100u);
    EXPECT_EQ(format.frameCount, 2u);

    WavBuilder::header(1, 1, 8000, 24).data({0x00, 0x00, 0x80, 0x00, 0x00, 0x40}).save(file);
    EXPECT_EQ(readAll(file), (std::vector<float>{-1.0f, 0.5f}));

    WavBuilder::header(1, 1, 8000, 32).data({0, 0, 0, 0xC0, 0, 0, 0, 0x40}).save(file);
    EXPECT_EQ(readAll(file), (std::vector<float>{-0.5f, 0.5f}));

    // The extensible format with a float sub-format, after an odd-sized chunk and its padding.
    WavBuilder extensible;
    extensible.text("RIFF").u32(0).text("WAVE").text("LIST").u32(3).raw({1, 2, 3, 0});
    extensible.text("fmt ").u32(40).u16(0xFFFE).u16(1).u32(96000).u32(384000).u16(4).u16(32);
    extensible.u16(22).u16(32).u32(4).u16(3).raw(std::vector<std::uint8_t>(14, 0));
    extensible.data({0, 0, 0x80, 0x3E}).save(file);
    EXPECT_EQ(readAll(file, &format), (std::vector<float>{0.25f}));
    EXPECT_EQ(format.encoding, WavFormat::Encoding::float32);
}

TEST(WavReader, RefusesDamagedOrUnsupportedFilesWithAReason) {
    TemporaryDirectory dir;
    const auto file = dir / "bad.wav";
    const std::vector<std::uint8_t> frame = {0, 0, 0, 0};
    const std::vector<std::pair<WavBuilder, std::string>> cases = {
        {WavBuilder().text("RIFX").u32(0).text("WAVE"), "not a WAV file"},
        {WavBuilder().text("RIFF"), "not a WAV file"},
        {WavBuilder::header(1, 2, 48000, 16).text("data").u32(400).raw(frame), "truncated"},
        {WavBuilder::header(1, 2, 48000, 16).text("data").u32(6).raw({0, 0, 0, 0, 0, 0}),
         "middle of a frame"},
        {WavBuilder::header(1, 2, 48000, 16), "truncated"},
        {WavBuilder().text("RIFF").u32(0).text("WAVE").text("fmt ").u32(0xFFFFFFF0),
         "claims 4294967280 bytes"},
        {WavBuilder().text("RIFF").u32(0).text("WAVE").data(frame), "before the format"},
        {WavBuilder::header(1, 1, 48000, 8).data(frame), "8-bit integer"},
        {WavBuilder::header(3, 1, 48000, 64).data({0, 0, 0, 0, 0, 0, 0, 0}), "64-bit float"},
        {WavBuilder::header(2, 1, 48000, 4).data(frame), "WAV format 2"},
        {WavBuilder::header(1, 9, 48000, 16).data(std::vector<std::uint8_t>(18)), "9 channels"},
        {WavBuilder::header(1, 1, 0, 16).data(frame), "sample rate of 0"},
    };
    for (const auto& [builder, reason] : cases) {
        builder.save(file);
        try {
            WavReader reader(file);
            ADD_FAILURE() << "accepted, expected: " << reason;
        } catch (const WavError& error) {
            EXPECT_NE(std::string(error.what()).find(reason), std::string::npos) << error.what();
            EXPECT_NE(std::string(error.what()).find("bad.wav"), std::string::npos);
        }
    }
    EXPECT_THROW(WavReader(dir / "missing.wav"), WavError);
}

TEST(WavWriter, WritesFloatFilesThatReadBackExactly) {
    TemporaryDirectory dir;
    const auto file = dir / "out.wav";
    {
        WavWriter writer(file, 3, 22050, 2);
        writer.write(std::vector<float>{0.1f, -0.2f, 0.3f});
        writer.write(std::vector<float>{1.5f, -1.0f, 0.0f});
        writer.finish();
    }
    WavFormat format;
    EXPECT_EQ(readAll(file, &format), (std::vector<float>{0.1f, -0.2f, 0.3f, 1.5f, -1.0f, 0.0f}));
    EXPECT_EQ(format.channels, 3);
    EXPECT_EQ(format.sampleRate, 22050u);
    const std::string bytes = TemporaryDirectory::read(file);
    EXPECT_EQ(bytes.size(), 58u + 24u);
    EXPECT_EQ(bytes.substr(38, 4), "fact");
    EXPECT_THROW(WavWriter(dir / "huge.wav", 8, 48000, 200'000'000), WavError);
    EXPECT_THROW(WavWriter(dir / "no" / "such" / "dir.wav", 1, 48000, 1), WavError);
}

}  // namespace
}  // namespace quorvane
