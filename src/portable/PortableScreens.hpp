#pragma once

#include "platform/Screens.hpp"

namespace quorvane {

// The command line has no display: no screens, no panels, no sound.
class PortableScreens : public Screens {
public:
    std::vector<Screen> screens() override { return {}; }
    std::optional<Screen> mainScreen() override { return std::nullopt; }
    Point mouseLocation() override { return {}; }
    void beep() override {}
    std::unique_ptr<Panel> makeFloatingPanel() override { return nullptr; }
    std::unique_ptr<ListPanel> makeListPanel(ListPanel::Handlers) override { return nullptr; }
};

}  // namespace quorvane
