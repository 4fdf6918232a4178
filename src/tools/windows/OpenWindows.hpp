#pragma once

#include <vector>

#include "platform/AccessibilityElement.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/WindowRecord.hpp"

namespace quorvane {

class Workspace;

// The standard, unminimized windows of every regular application running now (Quorvane's own
// left out), in the order the workspace lists the applications and each application its
// windows, with what a snapshot keeps of each.
class OpenWindows {
public:
    struct Window {
        int pid = 0;
        Element element;
        WindowRecord record;
    };

    OpenWindows(Workspace& workspace, AccessibleWindows& windows)
        : workspace_(workspace), windows_(windows) {}

    std::vector<Window> list();
    static std::vector<WindowRecord> records(const std::vector<Window>& windows);

private:
    Workspace& workspace_;
    AccessibleWindows& windows_;
};

}  // namespace quorvane
