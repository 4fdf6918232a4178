#pragma once

#include <string>
#include <vector>

#include "ui/SettingsSection.hpp"

namespace quorvane {

// A tool's settings page as data: what the settings window shows under the tool's switch.
struct SettingsPage {
    std::vector<SettingsSection> sections;

    SettingsPage& add(SettingsSection section) {
        sections.push_back(std::move(section));
        return *this;
    }
};

}  // namespace quorvane
