#pragma once

#include <optional>
#include <string_view>

namespace quorvane {

// Which keyboards a remapping changes.
enum class Keyboards { all, external, builtIn };

std::string_view rawValue(Keyboards keyboards);
std::optional<Keyboards> keyboardsFromRawValue(std::string_view name);
std::string_view title(Keyboards keyboards);
// Whether a mapping for `keyboards` belongs in the built-in (or else the plugged-in) table.
bool covers(Keyboards keyboards, bool builtIn);

}  // namespace quorvane
