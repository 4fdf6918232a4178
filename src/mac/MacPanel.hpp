#pragma once

#include <memory>

#include "mac/MacFrameworks.h"
#include "platform/Panel.hpp"

namespace quorvane {

// A non-activating NSPanel that shows a HUDCard drawn with AppKit views.
class MacPanel final : public Panel {
public:
    MacPanel();
    MacPanel(const MacPanel&) = delete;
    MacPanel& operator=(const MacPanel&) = delete;
    ~MacPanel() override;

    void setContent(const HUDCard& card) override;
    Size fittingSize() const override;
    void setFrame(const Rect& frame) override;
    void fadeTo(double alpha, Seconds duration, std::function<void()> completion) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    bool isVisible() const override;

private:
    NSPanel* panel_;
    // Read by pending fade completions, which must not run once the panel is gone.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace quorvane
