#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvane {

// Which key, held with a right-click, opens the list at the pointer.
enum class MouseTrigger { command, shift, controlOption, off };

const char* rawValue(MouseTrigger trigger);
// An unknown or missing value means `command`.
MouseTrigger mouseTriggerFrom(std::optional<std::string_view> raw);
const char* label(MouseTrigger trigger);
// Whether a right-mouse-down with these event flags opens the list: exactly the trigger's
// modifiers among Shift, Control, Option and Command, so a plain right-click keeps its menu.
bool triggers(MouseTrigger trigger, std::uint64_t flags);

}  // namespace quorvane
