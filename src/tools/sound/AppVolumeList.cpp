#include "tools/sound/AppVolumeList.hpp"

#include <algorithm>

namespace quorvane {

void AppVolumeList::setPointerInside(bool inside) {
    isPointerInside_ = inside;
    if (!inside) {
        frozenRows_.clear();
    }
}

std::vector<std::size_t> AppVolumeList::rows(const std::vector<AudioApp>& apps,
                                             const std::set<std::string>& listed) {
    std::vector<std::size_t> natural;
    for (std::size_t index = 0; index < apps.size(); ++index) {
        if (listed.contains(apps[index].id)) {
            natural.push_back(index);
        }
    }
    if (!isPointerInside_) {
        return natural;
    }
    std::vector<std::size_t> ordered;
    for (const std::string& id : frozenRows_) {
        const auto found = std::find_if(natural.begin(), natural.end(),
                                        [&](std::size_t index) { return apps[index].id == id; });
        if (found != natural.end()) {
            ordered.push_back(*found);
        }
    }
    for (const std::size_t index : natural) {
        if (std::find(ordered.begin(), ordered.end(), index) == ordered.end()) {
            ordered.push_back(index);
            frozenRows_.push_back(apps[index].id);
        }
    }
    return ordered;
}

}  // namespace quorvane
