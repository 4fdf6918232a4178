#include "cli/EqRender.hpp"

#include <vector>

#include "audio/EqualizerEngine.hpp"
#include "audio/EqualizerState.hpp"
#include "audio/GainControl.hpp"
#include "audio/RenderTap.hpp"
#include "audio/WavError.hpp"
#include "audio/WavReader.hpp"
#include "audio/WavWriter.hpp"
#include "base/Uuid.hpp"

namespace quorvane {

namespace {

void renderFile(const EqRender& settings, WavReader& reader, const std::filesystem::path& output) {
    const WavFormat& format = reader.format();
    EqualizerEngine engine;
    engine.update(settings.gains, settings.preamp, format.sampleRate);
    GainControl control(static_cast<float>(settings.gain));
    EqualizerState state;
    const TapRenderContext context{1, &control, &state, &engine};

    WavWriter writer(output, format.channels, format.sampleRate, format.frameCount);
    std::vector<float> input(settings.bufferFrames * format.channels);
    std::vector<float> rendered(input.size());
    while (const std::size_t frames = reader.read(input, settings.bufferFrames)) {
        const auto bytes = static_cast<std::uint32_t>(frames * format.channels * sizeof(float));
        const AudioBufferView in{format.channels, bytes, input.data()};
        AudioBufferView out{format.channels, bytes, rendered.data()};
        renderTap(context, {&in, 1}, {&out, 1});
        writer.write({rendered.data(), frames * format.channels});
    }
    writer.finish();
}

}  // namespace

void EqRender::run(const std::filesystem::path& input, const std::filesystem::path& output) const {
    WavReader reader(input);
    // Hidden, and unique, so two renders to one destination never share a temporary file.
    std::string name = output.filename().string();
    name.insert(0, 1, '.');
    name += '.';
    name += Uuid::random().text();
    name += ".partial";
    const std::filesystem::path temporary = output.parent_path() / name;
    try {
        renderFile(*this, reader, temporary);
        std::error_code error;
        std::filesystem::rename(temporary, output, error);
        if (error) {
            throw WavError("cannot write " + output.string() + ": " + error.message());
        }
    } catch (...) {
        std::error_code ignored;
        std::filesystem::remove(temporary, ignored);
        throw;
    }
}

}  // namespace quorvane
