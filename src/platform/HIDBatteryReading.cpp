#include "platform/HIDBatteryReading.hpp"

#include <cmath>
#include <limits>
#include <utility>

#include "platform/DictionaryFields.hpp"

namespace quorvane {

std::optional<HIDBatteryReading> HIDBatteryReading::read(
    const PreferenceValue::Dictionary& properties) {
    // As a whole number, whether the registry stores it as an integer or as a real (64.0).
    const auto* value = field(properties, "BatteryPercent");
    const auto percent = value && !value->boolean() ? value->number() : std::nullopt;
    if (!percent || std::trunc(*percent) != *percent ||
        !(*percent >= std::numeric_limits<int>::min() &&
          *percent <= std::numeric_limits<int>::max())) {
        return std::nullopt;
    }
    auto serial = stringField(properties, "SerialNumber").value_or("");
    if (serial.empty()) {
        serial = stringField(properties, "DeviceAddress").value_or("");
    }
    return HIDBatteryReading{stringField(properties, "Product").value_or(""), std::move(serial),
                             static_cast<int>(*percent)};
}

}  // namespace quorvane
