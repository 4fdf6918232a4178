#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvane {

// How an instance started by "Restart Quorvane" learns which process it replaces: the old
// instance passes its process id on the new one's command line, and the new one waits for
// that process to end before it takes the status item, hot keys and event taps.
inline constexpr const char* kReplacingArgument = "--replacing";

std::vector<std::string> restartArguments(int replacedProcessID);
// The replaced process id in a launch's arguments (the program's name first); nothing on an
// ordinary launch or when the value is not a positive process id.
std::optional<int> replacedProcessID(const std::vector<std::string>& arguments);

}  // namespace quorvane
