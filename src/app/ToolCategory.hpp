#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quorvane {

// In the order the settings window lists the categories.
enum class ToolCategory { windows, keyboard, input, sound, system };

inline constexpr std::array<ToolCategory, 5> kAllToolCategories = {
    ToolCategory::windows, ToolCategory::keyboard, ToolCategory::input, ToolCategory::sound,
    ToolCategory::system};

// The stored name of the case ("windows", "input", …).
std::string_view rawValue(ToolCategory category);
std::optional<ToolCategory> toolCategoryFromRawValue(std::string_view raw);
// The title the user sees ("Mouse & Trackpad" for input).
std::string_view title(ToolCategory category);

}  // namespace quorvane
