#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvane {

// Writes `bytes` to a new owner-only (0600, whatever the umask) file beside `path`, flushes it
// to the disk and renames it over `path`, so a crash or a full disk never leaves half a file
// where a good one was, and private text is never readable by others even for a moment. The
// folder must exist. On failure `path` is untouched, the temporary file is gone and `error`
// says "cannot write <path>: <reason>".
bool writeFileAtomically(const std::filesystem::path& path, std::string_view bytes,
                         std::string& error);

}  // namespace quorvane
