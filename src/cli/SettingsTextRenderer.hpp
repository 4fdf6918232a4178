#pragma once

#include <string>

#include "ui/SettingsPage.hpp"

namespace quorvane {

// Prints a settings page as plain text, one line per row, reading every binding the way the
// settings window would. Kept in step with the window: every row kind prints.
class SettingsTextRenderer {
public:
    static std::string render(const SettingsPage& page);
    static std::string renderRow(const SettingsRow& row);
};

}  // namespace quorvane
