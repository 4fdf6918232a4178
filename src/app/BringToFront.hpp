#pragma once

#include "platform/Accessibility.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

// Brings another application to the front from Quorvane, which as a menu-bar app is almost
// never active itself. Since macOS 14 activation is cooperative: a plain activation request from
// an inactive app is ignored while another app is active, so the restore after a focus theft or
// the raise after a window drag would do nothing. Setting the application element's
// "AXFrontmost" to true is honoured for a trusted process whatever is active, so that comes
// first; the workspace's activation is only the fallback when accessibility refuses (not
// trusted, or the process is gone). True when either request was accepted.
bool bringToFront(Accessibility& accessibility, Workspace& workspace, int pid);

}  // namespace quorvane
