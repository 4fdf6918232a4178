#pragma once

#include <memory>
#include <string>

namespace quorvane {

class Preferences;

// What the command line needs from the system it runs on: the application's own preference
// store, and a way to tell a running Quorvane that a tool was switched from here.
class CommandHost {
public:
    virtual ~CommandHost() = default;

    // The store used when no --prefs is given; nullptr with `error` set when it cannot be read.
    virtual std::unique_ptr<Preferences> openDefaultPreferences(std::string& error) = 0;
    // Where that store lives, for --help.
    virtual std::string defaultPreferencesDescription() const = 0;
    // Posts a self-switch notification with the tool's id to a running application, if any.
    virtual void announce(const std::string& notificationName, const std::string& toolID) = 0;
};

}  // namespace quorvane
