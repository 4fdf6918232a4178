#pragma once

#include <string>
#include <vector>

#include "ui/SettingsRow.hpp"

namespace quorvane {

struct SettingsSection {
    std::string title;
    std::vector<SettingsRow> rows;
    std::string footer;
};

}  // namespace quorvane
