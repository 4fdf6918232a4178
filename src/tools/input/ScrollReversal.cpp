#include "tools/input/ScrollReversal.hpp"

#include <array>
#include <limits>

#include "app/ToolRegistry.hpp"
#include "platform/Event.hpp"
#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

ScrollReversal ScrollReversal::read(const Preferences& preferences) {
    ScrollReversal settings;
    settings.reverseMouse = preferences.boolean(kReverseMouseKey).value_or(settings.reverseMouse);
    settings.reverseTrackpad =
        preferences.boolean(kReverseTrackpadKey).value_or(settings.reverseTrackpad);
    return settings;
}

bool ScrollReversal::reversesMouseWheels(const Preferences& preferences) {
    return preferences.boolean(ToolRegistry::enabledKey(kToolID)).value_or(false) &&
           read(preferences).reverseMouse;
}

bool ScrollReversal::isTrackpad(const Event& event) {
    return event.integerField(eventField::scrollIsContinuous) != 0 &&
           (event.integerField(eventField::scrollPhase) != 0 ||
            event.integerField(eventField::scrollMomentumPhase) != 0);
}

void ScrollReversal::reverse(Event& event) {
    // All read before any is written: the system may derive some of these fields from others
    // when one is set (unconfirmed), and the negation must start from what the device sent.
    constexpr std::array<std::uint32_t, 4> kIntegerFields = {
        eventField::scrollPointDeltaAxis1, eventField::scrollPointDeltaAxis2,
        eventField::scrollDeltaAxis1, eventField::scrollDeltaAxis2};
    constexpr std::array<std::uint32_t, 2> kFixedPointFields = {
        eventField::scrollFixedPtDeltaAxis1, eventField::scrollFixedPtDeltaAxis2};
    std::array<std::int64_t, 4> integers{};
    std::array<double, 2> fixedPoint{};
    for (std::size_t i = 0; i < kIntegerFields.size(); ++i) {
        integers[i] = event.integerField(kIntegerFields[i]);
    }
    for (std::size_t i = 0; i < kFixedPointFields.size(); ++i) {
        fixedPoint[i] = event.doubleField(kFixedPointFields[i]);
    }
    // Pixels, then lines, then fixed point, the order known to work in other reversers; whether
    // the order matters at all is unconfirmed.
    for (std::size_t i = 0; i < kIntegerFields.size(); ++i) {
        const std::int64_t value = integers[i];
        event.setIntegerField(kIntegerFields[i], value == std::numeric_limits<std::int64_t>::min()
                                                     ? std::numeric_limits<std::int64_t>::max()
                                                     : -value);
    }
    for (std::size_t i = 0; i < kFixedPointFields.size(); ++i) {
        event.setDoubleField(kFixedPointFields[i], -fixedPoint[i]);
    }
    if (event.integerField(eventField::sourceUserData) == 0) {
        event.setIntegerField(eventField::sourceUserData, kReversedTag);
    }
}

}  // namespace quorvane
