#include "platform/RepeatingPowerEvents.hpp"

#include <string_view>
#include <utility>

#include "platform/DictionaryFields.hpp"

namespace quorvane {

namespace {

std::optional<RepeatingPowerEvents::Event> event(const PreferenceValue::Dictionary& events,
                                                 std::string_view key) {
    const auto* value = field(events, key);
    const auto* fields = value ? value->dictionary() : nullptr;
    if (fields == nullptr) {
        return std::nullopt;
    }
    auto type = stringField(*fields, RepeatingPowerEvents::kTypeKey);
    const auto minutes = integerField(*fields, RepeatingPowerEvents::kTimeKey);
    const auto weekdays = integerField(*fields, RepeatingPowerEvents::kWeekdaysKey);
    if (!type || !minutes || !weekdays) {
        return std::nullopt;
    }
    return RepeatingPowerEvents::Event{std::move(*type), *minutes, *weekdays};
}

}  // namespace

RepeatingPowerEvents RepeatingPowerEvents::read(const PreferenceValue::Dictionary& events) {
    // unconfirmed: check on a Mac first (the weekday bits, Monday in bit 0, are as pmset's
    // repeat command reads them).
    return {event(events, kPowerOnKey), event(events, kPowerOffKey)};
}

RepeatingPowerEvents RepeatingPowerEvents::read(const std::optional<PreferenceValue>& events) {
    const auto* dictionary = events ? events->dictionary() : nullptr;
    return dictionary ? read(*dictionary) : RepeatingPowerEvents{};
}

}  // namespace quorvane
