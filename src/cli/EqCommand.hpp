#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

// `quorvane eq presets` and `quorvane eq render …`: the equalizer's presets, and a WAV file
// played through the equalizer, gain and limiter exactly as the app plays sound.
class EqCommand {
public:
    // The words after "eq". False, with `error` set to one line, on a refusal; nothing is
    // written to the output file then.
    static bool run(const std::vector<std::string>& operands, std::ostream& out,
                    std::string& error);
    // Its part of `quorvane --help`.
    static std::string usage();
};

}  // namespace quorvane
