#pragma once

#include <cstdint>

namespace quorvane {

// Raw numbers of the event fields Quorvane reads and writes, and the modifier-flag bits.
namespace eventField {
inline constexpr std::uint32_t mouseClickState = 1;
inline constexpr std::uint32_t mouseButtonNumber = 3;
inline constexpr std::uint32_t keyboardAutorepeat = 8;
inline constexpr std::uint32_t keyboardKeycode = 9;
inline constexpr std::uint32_t scrollDeltaAxis1 = 11;
inline constexpr std::uint32_t scrollDeltaAxis2 = 12;
inline constexpr std::uint32_t sourceUserData = 42;
inline constexpr std::uint32_t scrollIsContinuous = 88;
inline constexpr std::uint32_t scrollFixedPtDeltaAxis1 = 93;
inline constexpr std::uint32_t scrollFixedPtDeltaAxis2 = 94;
inline constexpr std::uint32_t scrollPointDeltaAxis1 = 96;
inline constexpr std::uint32_t scrollPointDeltaAxis2 = 97;
// Non-zero only on events of a touch gesture (trackpad, Magic Mouse) and its momentum.
inline constexpr std::uint32_t scrollPhase = 99;
inline constexpr std::uint32_t scrollMomentumPhase = 123;
}  // namespace eventField

namespace modifierFlag {
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;
inline constexpr std::uint64_t command = 0x100000;
// A test for an exact set of modifiers masks the flags with this first, so caps lock, the
// numeric pad and the fn key do not spoil the comparison.
inline constexpr std::uint64_t mask = shift | control | option | command;
}  // namespace modifierFlag

// Tags in the source user-data field of events Quorvane posts itself, so that its own taps let
// them pass untouched.
namespace ownEventTag {
inline constexpr std::int64_t key = 0x4B564C545458;
inline constexpr std::int64_t scroll = 0x4B564C545353;
}  // namespace ownEventTag

}  // namespace quorvane
