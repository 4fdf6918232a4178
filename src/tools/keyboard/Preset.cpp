#include "tools/keyboard/Preset.hpp"

namespace quorvane {

const std::vector<Preset>& Preset::all() {
    static const std::vector<Preset> presets = {
        {"Caps Lock → Escape", {{Key::capsLock, Key::escape}}, Keyboards::all},
        {"Caps Lock → Control", {{Key::capsLock, Key::leftControl}}, Keyboards::all},
        {"Windows keyboard: swap ⌘ and ⌥",
         {{Key::leftOption, Key::leftCommand},
          {Key::leftCommand, Key::leftOption},
          {Key::rightOption, Key::rightCommand},
          {Key::rightCommand, Key::rightOption}},
         Keyboards::external},
        {"Swap § and `", {{Key::section, Key::grave}, {Key::grave, Key::section}}, Keyboards::all},
    };
    return presets;
}

std::vector<Mapping> Preset::makeMappings() const {
    std::vector<Mapping> made;
    for (const auto& [from, to] : mappings) {
        made.push_back({Uuid::random(), from, to, keyboards});
    }
    return made;
}

}  // namespace quorvane
