#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

class Preferences;

// `quorvane snippets …`: the text snippets kept in the preferences, listed, added, removed,
// exported to a file and imported from one (the same JSON as stored).
class SnippetsCommand {
public:
    // Refuses a malformed command before anything is read; `error` says how to call it.
    static bool checkShape(const std::vector<std::string>& operands, std::string& error);
    // The words after "snippets". False, with `error` set to one line, on a refusal; nothing is
    // changed then.
    static bool run(Preferences& preferences, const std::vector<std::string>& operands,
                    std::ostream& out, std::string& error);
    // Its part of `quorvane --help`.
    static std::string usage();
};

}  // namespace quorvane
