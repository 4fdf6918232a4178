#include "app/BringToFront.hpp"

namespace quorvane {

bool bringToFront(Accessibility& accessibility, Workspace& workspace, int pid) {
    if (const Element application = accessibility.application(pid)) {
        if (accessibility.setAttribute(application, "AXFrontmost", AccessibilityValue(true)) ==
            Accessibility::kSuccess) {
            return true;
        }
    }
    return workspace.activate(pid);
}

}  // namespace quorvane
