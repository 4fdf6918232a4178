#include "tools/system/ArchivePaths.hpp"

#include <sstream>
#include <vector>

namespace quorvane {

namespace {

// The components of a relative path after "." and ".." are worked out; nothing when ".."
// would climb above the start.
std::optional<std::vector<std::string>> resolve(const std::vector<std::string>& start,
                                                const std::string& path) {
    std::vector<std::string> parts = start;
    std::istringstream components(path);
    for (std::string component; std::getline(components, component, '/');) {
        if (component.empty() || component == ".") {
            continue;
        }
        if (component == "..") {
            if (parts.empty()) {
                return std::nullopt;
            }
            parts.pop_back();
            continue;
        }
        parts.push_back(component);
    }
    return parts;
}

std::string join(const std::vector<std::string>& parts) {
    std::string path;
    for (const auto& part : parts) {
        path += (path.empty() ? "" : "/") + part;
    }
    return path;
}

}  // namespace

std::optional<std::string> ArchivePaths::inside(const std::string& memberPath) {
    // Windows-made archives may use backslashes or drive letters; neither is a name here.
    if (memberPath.empty() || memberPath.front() == '/' || memberPath.front() == '\\' ||
        memberPath.find('\0') != std::string::npos ||
        (memberPath.size() >= 2 && memberPath[1] == ':')) {
        return std::nullopt;
    }
    // Any ".." is refused, even one that would come back down: such names are made on purpose.
    std::istringstream components(memberPath);
    for (std::string component; std::getline(components, component, '/');) {
        if (component == "..") {
            return std::nullopt;
        }
    }
    const auto parts = resolve({}, memberPath);
    if (!parts || parts->empty()) {
        return std::nullopt;
    }
    return join(*parts);
}

bool ArchivePaths::linkStaysInside(const std::string& relativePath, const std::string& target) {
    if (target.empty() || target.front() == '/') {
        return false;
    }
    auto folder = resolve({}, relativePath);
    if (!folder || folder->empty()) {
        return false;
    }
    folder->pop_back();  // the link's own name
    const auto resolved = resolve(*folder, target);
    return resolved && !resolved->empty();
}

std::string ArchivePaths::besideFolderName(const std::string& archiveName,
                                           const std::function<bool(const std::string&)>& taken) {
    static constexpr const char* kCompressions[] = {".gz", ".bz2", ".xz", ".zst", ".lz", ".Z"};
    std::string base = archiveName;
    for (const char* suffix : kCompressions) {
        if (base.ends_with(suffix)) {
            base.resize(base.size() - std::char_traits<char>::length(suffix));
            break;
        }
    }
    if (const auto dot = base.rfind('.'); dot != std::string::npos && dot > 0) {
        base.resize(dot);
    }
    if (base.empty()) {
        base = "Archive";
    }
    std::string name = base;
    for (int n = 2; taken(name); ++n) {
        name = base + " " + std::to_string(n);
    }
    return name;
}

}  // namespace quorvane
