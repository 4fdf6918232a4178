#include "tools/keyboard/MouseTrigger.hpp"

namespace quorvane {

const char* rawValue(MouseTrigger trigger) {
    switch (trigger) {
        case MouseTrigger::command:
            return "command";
        case MouseTrigger::shift:
            return "shift";
        case MouseTrigger::controlOption:
            return "controlOption";
        case MouseTrigger::off:
            return "off";
    }
    return "command";
}

MouseTrigger mouseTriggerFrom(std::optional<std::string_view> raw) {
    for (const auto trigger :
         {MouseTrigger::shift, MouseTrigger::controlOption, MouseTrigger::off}) {
        if (raw && *raw == rawValue(trigger)) {
            return trigger;
        }
    }
    return MouseTrigger::command;
}

const char* label(MouseTrigger trigger) {
    switch (trigger) {
        case MouseTrigger::command:
            return "⌘ + right-click";
        case MouseTrigger::shift:
            return "⇧ + right-click";
        case MouseTrigger::controlOption:
            return "⌃⌥ + right-click";
        case MouseTrigger::off:
            return "Off";
    }
    return "";
}

bool triggers(MouseTrigger trigger, std::uint64_t flags) {
    const std::uint64_t held = flags & 0x1E0000;
    switch (trigger) {
        case MouseTrigger::command:
            return held == 0x100000;
        case MouseTrigger::shift:
            return held == 0x20000;
        case MouseTrigger::controlOption:
            return held == 0xC0000;
        case MouseTrigger::off:
            return false;
    }
    return false;
}

}  // namespace quorvane
