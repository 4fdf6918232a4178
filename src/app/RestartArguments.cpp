#include "app/RestartArguments.hpp"

#include <algorithm>
#include <charconv>

namespace quorvane {

std::vector<std::string> restartArguments(int replacedProcessID) {
    return {kReplacingArgument, std::to_string(replacedProcessID)};
}

std::optional<int> replacedProcessID(const std::vector<std::string>& arguments) {
    const auto flag = std::find(arguments.begin(), arguments.end(), kReplacingArgument);
    if (flag == arguments.end() || std::next(flag) == arguments.end()) {
        return std::nullopt;
    }
    const std::string& text = *std::next(flag);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value <= 0) {
        return std::nullopt;
    }
    return value;
}

}  // namespace quorvane
