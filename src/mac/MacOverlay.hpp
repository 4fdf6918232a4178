#pragma once

#include "mac/MacFrameworks.h"
#include "platform/Overlay.hpp"

namespace quorvane {

// A borderless, click-through black NSWindow whose opacity is the shade.
class MacOverlay final : public Overlay {
public:
    MacOverlay();
    MacOverlay(const MacOverlay&) = delete;
    MacOverlay& operator=(const MacOverlay&) = delete;
    ~MacOverlay() override;

    void setFrame(const Rect& frame) override;
    void setAlpha(double alpha) override;
    void orderBelow(std::uint32_t windowNumber) override;
    void orderOut() override;

private:
    NSWindow* window_;
};

}  // namespace quorvane
