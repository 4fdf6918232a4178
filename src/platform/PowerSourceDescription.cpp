#include "platform/PowerSourceDescription.hpp"

#include "platform/DictionaryFields.hpp"

namespace quorvane {

PowerSourceDescription PowerSourceDescription::read(
    const PreferenceValue::Dictionary& description) {
    // The key strings are IOPSKeys.h's.
    PowerSourceDescription source;
    source.name = stringField(description, "Name").value_or("");
    source.type = stringField(description, "Type").value_or("");
    source.powerSourceState = stringField(description, "Power Source State").value_or("");
    source.isPresent = booleanField(description, "Is Present").value_or(false);
    source.isCharging = booleanField(description, "Is Charging");
    source.currentCapacity = integerField(description, "Current Capacity");
    source.maxCapacity = integerField(description, "Max Capacity");
    return source;
}

}  // namespace quorvane
