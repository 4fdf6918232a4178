#pragma once

#include <string>
#include <string_view>

#include "ui/SettingsPage.hpp"

namespace quorvane {

// Changes one setting of a page from text, the way its control in the settings window would,
// so every tool's settings can be changed from the command line without a command of its own.
// The row is found by its label, ignoring case and a trailing colon or ellipsis. A switch takes
// on/off, a choice an option's stored value or title, a slider or stepper a number in its range
// (a stepper's on its steps), a text field any text, and an application list "+ID" or "-ID".
class SettingsRowEditor {
public:
    // False with a one-line reason when no single row has the label, the row cannot be set
    // from text, or the value does not fit it; nothing is written then.
    static bool set(const SettingsPage& page, std::string_view label, std::string_view value,
                    std::string& error);
};

}  // namespace quorvane
