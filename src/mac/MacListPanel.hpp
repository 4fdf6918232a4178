#pragma once

#include <memory>

#include "mac/MacFrameworks.h"
#include "platform/ListPanel.hpp"

@class QVListPanelController;

namespace quorvane {

// The floating list as a borderless, non-activating NSPanel that can still become key: a
// search field over a table of rows and a footer line. It draws the content it is given and
// passes clicks, hovering, typing and the loss of key status to the handlers; every decision
// about them is made by the portable code behind the handlers.
class MacListPanel final : public ListPanel {
public:
    explicit MacListPanel(Handlers handlers);
    MacListPanel(const MacListPanel&) = delete;
    MacListPanel& operator=(const MacListPanel&) = delete;
    ~MacListPanel() override;

    void setContent(const ListPanelContent& content) override;
    void show(const Rect& frame) override;
    void close() override;
    bool isVisible() const override;

private:
    QVListPanelController* controller_;
};

}  // namespace quorvane
