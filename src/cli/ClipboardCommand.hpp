#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

// `quorvane clipboard list [--json]`, `search WORD` and `clear`: the clipboard history kept
// on disk, inspected and scripted without the app.
class ClipboardCommand {
public:
    // The words after "clipboard", over the history in `folder`. False, with `error` set to
    // one line, on a refusal.
    static bool run(const std::vector<std::string>& operands, const std::filesystem::path& folder,
                    std::ostream& out, std::string& error);
    // Its part of `quorvane --help`.
    static std::string usage();
    // "2026-05-12T14:03:22Z" for seconds since 2001-01-01 00:00:00 UTC.
    static std::string dateText(double secondsSince2001);
};

}  // namespace quorvane
