#include "cli/EqCommand.hpp"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <ostream>
#include <sstream>
#include <stdexcept>

#include "audio/WavError.hpp"
#include "cli/EqRender.hpp"

namespace quorvane {

namespace {

struct Refusal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

constexpr double kGainLimit = 24.0;  // dB either way, for bands and preamp
constexpr double kLinearGainLimit = 16.0;
constexpr long kLongestBuffer = 65536;

std::string number(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

// The whole word as a finite number within ±limit.
double parseNumber(const std::string& word, const std::string& what, double low, double high) {
    errno = 0;
    char* end = nullptr;
    const double value = std::strtod(word.c_str(), &end);
    if (word.empty() || end != word.c_str() + word.size() || errno == ERANGE ||
        !std::isfinite(value) || value < low || value > high) {
        throw Refusal(what + " must be a number from " + number(low) + " to " + number(high) +
                      ", not \"" + word + "\"");
    }
    return value;
}

EqualizerPreset::Gains parseGains(const std::string& list) {
    EqualizerPreset::Gains gains{};
    std::size_t band = 0;
    std::size_t start = 0;
    for (;;) {
        const std::size_t comma = list.find(',', start);
        if (band == gains.size()) {
            throw Refusal("--gains takes at most 10 values, one per band");
        }
        gains[band++] =
            parseNumber(list.substr(start, comma - start), "a band gain", -kGainLimit, kGainLimit);
        if (comma == std::string::npos) {
            return gains;
        }
        start = comma + 1;
    }
}

void listPresets(std::ostream& out) {
    out << "Preset           Gains in dB at 32,64,125,250,500,1k,2k,4k,8k,16k Hz\n";
    for (const EqualizerPreset& preset : EqualizerPreset::all()) {
        std::string gains;
        for (const double gain : preset.gains) {
            if (!gains.empty()) {
                gains += ',';
            }
            gains += number(gain);
        }
        out << preset.name << std::string(17 - preset.name.size(), ' ') << gains << "\n";
    }
}

void render(const std::vector<std::string>& words) {
    EqRender settings;
    std::vector<std::string> files;
    bool presetGiven = false;
    bool gainsGiven = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::string word = words[i];
        std::optional<std::string> value;
        if (const auto equals = word.find('=');
            word.starts_with("--") && equals != std::string::npos) {
            value = word.substr(equals + 1);
            word.resize(equals);
        }
        const auto argument = [&]() -> std::string {
            if (value) {
                return *value;
            }
            if (i + 1 >= words.size()) {
                throw Refusal(word + " needs a value");
            }
            return words[++i];
        };
        if (word == "--preset") {
            const std::string name = argument();
            const EqualizerPreset* preset = EqualizerPreset::named(name);
            if (!preset) {
                throw Refusal("there is no preset \"" + name + "\" (see 'quorvane eq presets')");
            }
            settings.gains = preset->gains;
            presetGiven = true;
        } else if (word == "--gains") {
            settings.gains = parseGains(argument());
            gainsGiven = true;
        } else if (word == "--preamp") {
            settings.preamp = parseNumber(argument(), "--preamp", -kGainLimit, kGainLimit);
        } else if (word == "--gain") {
            settings.gain = parseNumber(argument(), "--gain", 0, kLinearGainLimit);
        } else if (word == "--buffer") {
            const std::string frames = argument();
            const double count = parseNumber(frames, "--buffer", 1, kLongestBuffer);
            if (count != std::floor(count)) {
                throw Refusal("--buffer must be a whole number of frames, not \"" + frames + "\"");
            }
            settings.bufferFrames = static_cast<std::size_t>(count);
        } else if (word.starts_with("--")) {
            throw Refusal("unknown option " + word + " (see 'quorvane --help')");
        } else {
            files.push_back(word);
        }
    }
    if (presetGiven && gainsGiven) {
        throw Refusal("give either --preset or --gains, not both");
    }
    if (files.size() != 2) {
        throw Refusal("usage: quorvane eq render [OPTION]... IN.wav OUT.wav");
    }
    settings.run(files[0], files[1]);
}

}  // namespace

bool EqCommand::run(const std::vector<std::string>& operands, std::ostream& out,
                    std::string& error) {
    try {
        if (operands.size() == 1 && operands[0] == "presets") {
            listPresets(out);
        } else if (!operands.empty() && operands[0] == "render") {
            render({operands.begin() + 1, operands.end()});
        } else {
            throw Refusal("usage: quorvane eq presets | quorvane eq render [OPTION]... IN OUT");
        }
        return true;
    } catch (const std::runtime_error& refusal) {
        error = refusal.what();
        return false;
    }
}

std::string EqCommand::usage() {
    return "  eq presets                 the equalizer's presets and their gains\n"
           "  eq render [OPTION]... IN.wav OUT.wav\n"
           "                             play a WAV file (16-, 24-, 32-bit or float, 1 to 8\n"
           "                             channels) through the equalizer, gain and limiter into\n"
           "                             a 32-bit float WAV file:\n"
           "      --preset NAME          a preset's gains (default: Flat)\n"
           "      --gains G1,...,G10     band gains in dB from 32 Hz up to 16 kHz (-24 to 24)\n"
           "      --preamp DB            preamp in dB (default 0)\n"
           "      --gain LINEAR          volume factor, 1 plays unchanged (0 to 16)\n"
           "      --buffer FRAMES        frames per render cycle (default 512)\n";
}

}  // namespace quorvane
