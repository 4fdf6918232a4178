#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Base64 with the standard alphabet and '=' padding, for binary data inside text files.
namespace quorvane::base64 {

std::string encode(std::span<const std::uint8_t> bytes);

// Only the exact form `encode` produces is accepted: no whitespace, no missing or extra padding,
// no stray bits in the last character. Anything else means the data was damaged, and saying so
// beats handing back bytes that differ from what was written.
std::optional<std::vector<std::uint8_t>> decode(std::string_view text);

}  // namespace quorvane::base64
