#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/Rect.hpp"

namespace quorvane {

// Where the window-snap tool can put the front window, in menu order.
enum class SnapAction {
    leftHalf,
    rightHalf,
    topHalf,
    bottomHalf,
    topLeft,
    topRight,
    bottomLeft,
    bottomRight,
    maximize,
    center,
    nextDisplay,
};

inline constexpr std::array<SnapAction, 11> kAllSnapActions = {
    SnapAction::leftHalf, SnapAction::rightHalf, SnapAction::topHalf,    SnapAction::bottomHalf,
    SnapAction::topLeft,  SnapAction::topRight,  SnapAction::bottomLeft, SnapAction::bottomRight,
    SnapAction::maximize, SnapAction::center,    SnapAction::nextDisplay};

// The stored key of the action in the shortcut map ("leftHalf"…).
std::string_view rawValue(SnapAction action);
std::optional<SnapAction> snapActionFromRawValue(std::string_view raw);
std::string_view title(SnapAction action);
std::string_view symbol(SnapAction action);

// The frame an action gives a window `window` in the target area `area`, both in accessibility
// coordinates (origin at the top left of the primary screen, y downward), rounded outward to
// whole points. Positions are fractions of the area, so one table serves every action; center
// and nextDisplay keep the window's size, shrunk to fit, and centre it.
Rect snapFrame(SnapAction action, const Rect& window, const Rect& area);

}  // namespace quorvane
