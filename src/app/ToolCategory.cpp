#include "app/ToolCategory.hpp"

namespace quorvane {

std::string_view rawValue(ToolCategory category) {
    switch (category) {
        case ToolCategory::windows:
            return "windows";
        case ToolCategory::keyboard:
            return "keyboard";
        case ToolCategory::input:
            return "input";
        case ToolCategory::sound:
            return "sound";
        case ToolCategory::system:
            return "system";
    }
    return {};
}

std::optional<ToolCategory> toolCategoryFromRawValue(std::string_view raw) {
    for (const auto category : kAllToolCategories) {
        if (rawValue(category) == raw) {
            return category;
        }
    }
    return std::nullopt;
}

std::string_view title(ToolCategory category) {
    switch (category) {
        case ToolCategory::windows:
            return "Windows";
        case ToolCategory::keyboard:
            return "Keyboard";
        case ToolCategory::input:
            return "Mouse & Trackpad";
        case ToolCategory::sound:
            return "Sound";
        case ToolCategory::system:
            return "Finder & System";
    }
    return {};
}

}  // namespace quorvane
