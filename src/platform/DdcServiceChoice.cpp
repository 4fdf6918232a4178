#include "platform/DdcServiceChoice.hpp"

#include <algorithm>

namespace quorvane {

std::optional<std::size_t> ddcServiceIndex(std::uint32_t display,
                                           const std::vector<DisplayControl::Display>& displays,
                                           std::size_t serviceCount) {
    const auto isExternal = [](const DisplayControl::Display& listed) { return !listed.builtIn; };
    const auto found = std::find_if(
        displays.begin(), displays.end(),
        [display](const DisplayControl::Display& listed) { return listed.id == display; });
    if (found == displays.end() || found->builtIn || serviceCount != 1 ||
        std::count_if(displays.begin(), displays.end(), isExternal) != 1) {
        return std::nullopt;
    }
    return 0;
}

}  // namespace quorvane
