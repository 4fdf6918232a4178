#pragma once

#include <optional>
#include <string>
#include <string_view>

// File URLs as the pasteboard carries them: "file:///Users/me/My%20File.txt".
namespace quorvane::file_url {

// An absolute path as a file URL, every byte outside the unreserved set and '/' percent-encoded.
std::string fromPath(std::string_view path);

// The path a "file://" URL names (an empty or "localhost" host), percent-decoded; nothing for
// other URLs or a malformed escape.
std::optional<std::string> toPath(std::string_view url);

}  // namespace quorvane::file_url
