#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/Point.hpp"
#include "platform/ListPanel.hpp"
#include "platform/Overlay.hpp"
#include "platform/Panel.hpp"
#include "platform/Screen.hpp"

namespace quorvane {

// The displays, the mouse and the small on-screen things that are not windows of an app.
class Screens {
public:
    virtual ~Screens() = default;

    virtual std::vector<Screen> screens() = 0;
    // The screen with the key window; nothing when there is no display at all.
    virtual std::optional<Screen> mainScreen() = 0;
    // In screen coordinates (bottom-left origin), like the frames.
    virtual Point mouseLocation() = 0;
    virtual void beep() = 0;
    // A new, hidden floating panel; nothing where there is no window system.
    virtual std::unique_ptr<Panel> makeFloatingPanel() = 0;
    // A new, hidden floating list that reports to `handlers`; nothing where there is no
    // window system.
    virtual std::unique_ptr<ListPanel> makeListPanel(ListPanel::Handlers handlers) = 0;
    // A new, hidden shade for dimming; nothing where there is no window system.
    virtual std::unique_ptr<Overlay> makeOverlay() { return nullptr; }
    // Makes the Dock come to the display whose bottom edge holds the point (accessibility
    // coordinates) at once. The system offers no interface for this, so this one call imitates
    // the user's push, and answers false where it cannot.
    virtual bool summonDock(Point /*bottomEdge*/) { return false; }
};

}  // namespace quorvane
