#pragma once

#include <memory>

#include "cli/CommandHost.hpp"

namespace quorvane {

// The command line's view of macOS: the app's user defaults, and distributed notifications to
// a running Quorvane.
std::unique_ptr<CommandHost> makeMacCommandHost();

}  // namespace quorvane
