#include "tools/windows/SnapAction.hpp"

#include <algorithm>

namespace quorvane {

namespace {

struct ActionInfo {
    SnapAction action;
    std::string_view raw;
    std::string_view title;
    std::string_view symbol;
    // The target as fractions of the area: x, y, width, height. Unused for the centred ones.
    double x, y, width, height;
    bool keepsWindowSize;
};

constexpr std::array<ActionInfo, 11> kActions = {{
    {SnapAction::leftHalf, "leftHalf", "Left half", "rectangle.lefthalf.filled", 0, 0, 0.5, 1,
     false},
    {SnapAction::rightHalf, "rightHalf", "Right half", "rectangle.righthalf.filled", 0.5, 0, 0.5, 1,
     false},
    {SnapAction::topHalf, "topHalf", "Top half", "rectangle.tophalf.filled", 0, 0, 1, 0.5, false},
    {SnapAction::bottomHalf, "bottomHalf", "Bottom half", "rectangle.bottomhalf.filled", 0, 0.5, 1,
     0.5, false},
    {SnapAction::topLeft, "topLeft", "Top left quarter", "rectangle.inset.topleft.filled", 0, 0,
     0.5, 0.5, false},
    {SnapAction::topRight, "topRight", "Top right quarter", "rectangle.inset.topright.filled", 0.5,
     0, 0.5, 0.5, false},
    {SnapAction::bottomLeft, "bottomLeft", "Bottom left quarter",
     "rectangle.inset.bottomleft.filled", 0, 0.5, 0.5, 0.5, false},
    {SnapAction::bottomRight, "bottomRight", "Bottom right quarter",
     "rectangle.inset.bottomright.filled", 0.5, 0.5, 0.5, 0.5, false},
    {SnapAction::maximize, "maximize", "Fill the screen", "rectangle.fill", 0, 0, 1, 1, false},
    {SnapAction::center, "center", "Center", "rectangle.center.inset.filled", 0, 0, 0, 0, true},
    {SnapAction::nextDisplay, "nextDisplay", "Move to next display", "rectangle.on.rectangle", 0, 0,
     0, 0, true},
}};

const ActionInfo& info(SnapAction action) {
    return kActions[static_cast<std::size_t>(action)];
}

}  // namespace

std::string_view rawValue(SnapAction action) {
    return info(action).raw;
}
std::string_view title(SnapAction action) {
    return info(action).title;
}
std::string_view symbol(SnapAction action) {
    return info(action).symbol;
}

std::optional<SnapAction> snapActionFromRawValue(std::string_view raw) {
    for (const auto& entry : kActions) {
        if (entry.raw == raw) {
            return entry.action;
        }
    }
    return std::nullopt;
}

Rect snapFrame(SnapAction action, const Rect& window, const Rect& area) {
    const ActionInfo& target = info(action);
    if (target.keepsWindowSize) {
        const double width = std::min(window.width(), area.width());
        const double height = std::min(window.height(), area.height());
        return Rect(area.midX() - width / 2, area.midY() - height / 2, width, height).integral();
    }
    // Halves start at the area's midpoint rather than at minX + width/2 rounded, so two halves
    // of an odd width overlap by the rounding instead of leaving a gap.
    return Rect(area.minX() + area.width() * target.x, area.minY() + area.height() * target.y,
                area.width() * target.width, area.height() * target.height)
        .integral();
}

}  // namespace quorvane
