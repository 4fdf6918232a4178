#pragma once

#include <string>
#include <vector>

#include "ui/SettingsRow.hpp"

namespace quorvane {

struct SettingsSection {
    std::string title;
    std::vector<SettingsRow> rows;
    std::string footer;
    // An application bundle's path whose icon is shown before the title; empty for none.
    std::string iconFile{};
};

}  // namespace quorvane
