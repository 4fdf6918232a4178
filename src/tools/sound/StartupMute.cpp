#include "tools/sound/StartupMute.hpp"

namespace quorvane {

std::string StartupMute::nvramText(const std::string& bytes) {
    static constexpr char kHex[] = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > 0x20 && byte < 0x7F && c != '%') {
            text += c;
        } else {
            text += '%';
            text += kHex[byte >> 4];
            text += kHex[byte & 0xF];
        }
    }
    return text;
}

std::vector<std::string> StartupMute::nvramArguments(const std::optional<std::string>& value) {
    if (!value) {
        return {"-d", kVariable};
    }
    return {std::string(kVariable) + "=" + nvramText(*value)};
}

}  // namespace quorvane
