#include "tools/input/Glide.hpp"

namespace quorvane {

std::string_view rawValue(Glide glide) {
    switch (glide) {
        case Glide::shortGlide:
            return "short";
        case Glide::medium:
            return "medium";
        case Glide::longGlide:
            return "long";
    }
    return "medium";
}

std::optional<Glide> glideFromRawValue(std::string_view raw) {
    for (const Glide glide : {Glide::shortGlide, Glide::medium, Glide::longGlide}) {
        if (rawValue(glide) == raw) {
            return glide;
        }
    }
    return std::nullopt;
}

Seconds timeConstant(Glide glide) {
    switch (glide) {
        case Glide::shortGlide:
            return Seconds(0.05);
        case Glide::medium:
            return Seconds(0.09);
        case Glide::longGlide:
            return Seconds(0.15);
    }
    return Seconds(0.09);
}

}  // namespace quorvane
