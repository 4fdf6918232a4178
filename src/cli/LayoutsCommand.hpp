#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvane {

class Preferences;

// `quorvane layouts …`: the saved window layouts, listed, shown window by window, or removed,
// from the same stored JSON the app reads.
class LayoutsCommand {
public:
    static bool checkShape(const std::vector<std::string>& operands, std::string& error);
    // False, with `error` set to one line, on a refusal; nothing is changed then.
    static bool run(Preferences& preferences, const std::vector<std::string>& operands,
                    std::ostream& out, std::string& error);
    static std::string usage();
};

}  // namespace quorvane
