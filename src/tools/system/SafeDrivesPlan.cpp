#include "tools/system/SafeDrivesPlan.hpp"

#include <algorithm>

namespace quorvane {

std::vector<std::string> SafeDrivesPlan::toUnmount(const std::vector<Volume>& volumes) const {
    std::vector<std::string> names;
    for (const auto& volume : volumes) {
        if (volume.mounted && !volume.internal && !volume.network) {
            names.push_back(volume.bsdName);
        }
    }
    return names;
}

void SafeDrivesPlan::unmounted(const std::string& bsdName, bool succeeded) {
    if (succeeded && std::find(ejected_.begin(), ejected_.end(), bsdName) == ejected_.end()) {
        ejected_.push_back(bsdName);
    }
}

std::vector<std::string> SafeDrivesPlan::toMount(const std::vector<Volume>& volumes) {
    std::vector<std::string> names;
    for (const auto& bsdName : ejected_) {
        const auto present = std::find_if(volumes.begin(), volumes.end(),
                                          [&](const Volume& v) { return v.bsdName == bsdName; });
        if (present != volumes.end() && !present->mounted) {
            names.push_back(bsdName);
        }
    }
    ejected_.clear();
    return names;
}

}  // namespace quorvane
