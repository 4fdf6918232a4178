#pragma once

#include "cli/CommandHost.hpp"

namespace quorvane {

// Outside macOS: the JSON preferences file in the user's configuration folder, and no running
// application to tell.
class PortableCommandHost : public CommandHost {
public:
    std::unique_ptr<Preferences> openDefaultPreferences(std::string& error) override;
    std::string defaultPreferencesDescription() const override;
    void preferencesChanged() override {}
};

}  // namespace quorvane
