#pragma once

#include <string>
#include <vector>

#include "ui/SettingsRow.hpp"

namespace quorvane {

class Workspace;

// The rows of an app list: each stored bundle id with the name of its running application, or
// the id itself when that app is not running (the list must still show what it holds).
std::vector<SettingsRow::AppEntry> appEntries(Workspace& workspace,
                                              const std::vector<std::string>& bundleIDs);

}  // namespace quorvane
