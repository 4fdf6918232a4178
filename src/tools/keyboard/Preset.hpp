#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tools/keyboard/Keyboards.hpp"
#include "tools/keyboard/Mapping.hpp"

namespace quorvane {

// A ready-made set of remappings the user adds with one click.
struct Preset {
    std::string title;
    std::vector<std::pair<Key, Key>> mappings;
    Keyboards keyboards = Keyboards::all;

    static const std::vector<Preset>& all();
    // The preset's pairs as new mappings, each with a fresh id.
    std::vector<Mapping> makeMappings() const;
};

}  // namespace quorvane
