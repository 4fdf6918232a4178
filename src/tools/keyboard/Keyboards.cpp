#include "tools/keyboard/Keyboards.hpp"

namespace quorvane {

std::string_view rawValue(Keyboards keyboards) {
    switch (keyboards) {
        case Keyboards::external:
            return "external";
        case Keyboards::builtIn:
            return "builtIn";
        case Keyboards::all:
            break;
    }
    return "all";
}

std::optional<Keyboards> keyboardsFromRawValue(std::string_view name) {
    for (const Keyboards keyboards : {Keyboards::all, Keyboards::external, Keyboards::builtIn}) {
        if (rawValue(keyboards) == name) {
            return keyboards;
        }
    }
    return std::nullopt;
}

std::string_view title(Keyboards keyboards) {
    switch (keyboards) {
        case Keyboards::external:
            return "Plugged-in keyboards";
        case Keyboards::builtIn:
            return "MacBook keyboard";
        case Keyboards::all:
            break;
    }
    return "Every keyboard";
}

bool covers(Keyboards keyboards, bool builtIn) {
    return keyboards == Keyboards::all || (keyboards == Keyboards::builtIn) == builtIn;
}

}  // namespace quorvane
