#include "platform/HIDBatteryReading.hpp"

#include <limits>
#include <utility>

#include "platform/DictionaryFields.hpp"

namespace quorvane {

std::optional<HIDBatteryReading> HIDBatteryReading::read(
    const PreferenceValue::Dictionary& properties) {
    const auto* value = field(properties, "BatteryPercent");
    const auto* percent = value ? value->integer() : nullptr;
    if (percent == nullptr || *percent < std::numeric_limits<int>::min() ||
        *percent > std::numeric_limits<int>::max()) {
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
