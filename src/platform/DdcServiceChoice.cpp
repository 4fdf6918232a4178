#include "platform/DdcServiceChoice.hpp"

#include <algorithm>

namespace quorvane {

std::optional<std::size_t> ddcServiceIndex(std::uint32_t display,
                                           const std::vector<DisplayControl::Display>& displays,
                                           std::size_t serviceCount) {
    const auto isExternal = [](const DisplayControl::Display& listed) { return !listed.builtIn; };
    const auto found = std::ranges::find(displays, display, &DisplayControl::Display::id);
    if (found == displays.end() || found->builtIn || serviceCount != 1 ||
        std::ranges::count_if(displays, isExternal) != 1) {
        return std::nullopt;
    }
    return 0;
}

}  // namespace quorvane
