#pragma once

#include <string>
#include <vector>

#include "app/Permission.hpp"
#include "app/PermissionCard.hpp"

namespace quorvane {

// What shows permission cards (the settings window, the first-run welcome) asks of its model:
// the cards, the notice of a card's button that failed, and what the buttons do.
class PermissionCardSource {
public:
    virtual ~PermissionCardSource() = default;
    virtual std::vector<PermissionCard> cards() const = 0;
    virtual const std::string& cardNotice() const = 0;
    virtual void performCardAction(Permission permission, PermissionCard::Action action) = 0;
};

}  // namespace quorvane
