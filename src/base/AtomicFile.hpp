#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace quorvane {

// Receives a file's bytes piece by piece; false stops the writing.
using ByteSink = std::function<bool(std::string_view bytes)>;

// Writes to a new owner-only (0600, whatever the umask) file beside `path`, flushes it to the
// disk and renames it over `path`, so a crash or a full disk never leaves half a file where a
// good one was, and private text is never readable by others even for a moment. The folder
// must exist. `produce` hands the bytes to the sink it is given, in as many pieces as it likes,
// and answers false to give up. On failure `path` is untouched, the temporary file is gone and
// `error` says "cannot write <path>: <reason>".
bool writeFileAtomically(const std::filesystem::path& path,
                         const std::function<bool(const ByteSink& sink)>& produce,
                         std::string& error);
bool writeFileAtomically(const std::filesystem::path& path, std::string_view bytes,
                         std::string& error);

}  // namespace quorvane
