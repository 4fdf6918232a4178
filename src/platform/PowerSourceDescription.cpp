#include "platform/PowerSourceDescription.hpp"

#include "platform/DictionaryFields.hpp"

namespace quorvane {

PowerSourceDescription PowerSourceDescription::read(
    const PreferenceValue::Dictionary& description) {
    PowerSourceDescription source;
    source.name = stringField(description, kNameKey).value_or("");
    source.type = stringField(description, kTypeKey).value_or("");
    source.powerSourceState = stringField(description, kStateKey).value_or("");
    source.isPresent = booleanField(description, kIsPresentKey).value_or(false);
    source.isCharging = booleanField(description, kIsChargingKey);
    source.currentCapacity = integerField(description, kCurrentCapacityKey);
    source.maxCapacity = integerField(description, kMaxCapacityKey);
    return source;
}

}  // namespace quorvane
