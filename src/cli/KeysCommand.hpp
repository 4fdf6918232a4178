#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

struct Platform;

// `quorvane keys …`: the remapped keys, the hidutil calls that set them, the
// presets, and adding or removing one mapping. Changes are stored for Quorvane
// to hand to macOS; this command never runs hidutil itself.
class KeysCommand {
public:
    // Whether the words after "keys" have a shape this command knows; checked
    // before anything is opened.
    static bool wellFormed(const std::vector<std::string>& operands);
    static std::string shape();
    // False, with `error` set to one line, on a refusal; nothing is stored then.
    static bool run(const std::vector<std::string>& operands, const Platform& platform,
                    std::ostream& out, std::string& error);
    // Its part of `quorvane --help`.
    static std::string usage();
};

}  // namespace quorvane
