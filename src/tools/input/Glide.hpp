#pragma once

#include <optional>
#include <string_view>

#include "platform/Scheduler.hpp"

namespace quorvane {

// How long a smooth scroll keeps coasting after the wheel stops: the time constant of the
// exponential decay that releases the pending distance.
// Stored as "short", "medium" and "long"; those names are taken in C++.
enum class Glide { shortGlide, medium, longGlide };

std::string_view rawValue(Glide glide);
// Nothing for an unknown value; the caller falls back to medium.
std::optional<Glide> glideFromRawValue(std::string_view raw);
Seconds timeConstant(Glide glide);

}  // namespace quorvane
