#include "platform/FirmwareVariables.hpp"

namespace quorvane {

std::optional<std::string> FirmwareVariables::bytes(const PreferenceValue& property) {
    if (const auto* data = property.data()) {
        return std::string(data->begin(), data->end());
    }
    if (const auto* text = property.string()) {
        return *text;
    }
    return std::nullopt;
}

}  // namespace quorvane
