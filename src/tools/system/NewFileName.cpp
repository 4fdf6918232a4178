#include "tools/system/NewFileName.hpp"

namespace quorvane {

std::string NewFileName::choose(const std::string& base, const std::string& extension,
                                const std::function<bool(const std::string& name)>& taken) {
    const std::string stem = base.empty() ? "untitled" : base;
    const std::string suffix = extension.empty() ? "" : "." + extension;
    std::string name = stem + suffix;
    for (int n = 2; taken(name); ++n) {
        name = stem + " " + std::to_string(n) + suffix;
    }
    return name;
}

}  // namespace quorvane
