#include "cli/PortableCommandHost.hpp"

#include "portable/FilePreferences.hpp"

namespace quorvane {

std::unique_ptr<Preferences> PortableCommandHost::openDefaultPreferences(std::string& error) {
    return FilePreferences::open(FilePreferences::defaultPath(), error);
}

std::string PortableCommandHost::defaultPreferencesDescription() const {
    return FilePreferences::defaultPath().string();
}

}  // namespace quorvane
