#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/DisplayControl.hpp"

namespace quorvane {

// Which of the registry's external AV services carries DDC to `display`, by index. The
// registry does not say which display a service drives, and pairing them in registry order
// holds only for one external display: with more, or for a built-in or unlisted display, none
// is chosen rather than risk writing to the wrong monitor.
std::optional<std::size_t> ddcServiceIndex(std::uint32_t display,
                                           const std::vector<DisplayControl::Display>& displays,
                                           std::size_t serviceCount);

}  // namespace quorvane
