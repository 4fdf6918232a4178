#pragma once

#include "platform/Screens.hpp"

namespace quorvane {

// NSScreen, the mouse, the HUD's panel and the floating lists.
class MacScreens final : public Screens {
public:
    std::vector<Screen> screens() override;
    std::optional<Screen> mainScreen() override;
    Point mouseLocation() override;
    void beep() override;
    std::unique_ptr<Panel> makeFloatingPanel() override;
    std::unique_ptr<ListPanel> makeListPanel(ListPanel::Handlers handlers) override;
    std::unique_ptr<Overlay> makeOverlay() override;
    bool summonDock(Point bottomEdge) override;
};

}  // namespace quorvane
