#pragma once

#include "app/PermissionCardSource.hpp"
#include "ui/ViewNode.hpp"

namespace quorvane {

// The source's permission cards one above the other, `width` wide, with the notice of a card's
// button that failed under them. The buttons act through `source`, which must outlive the view.
ViewNode permissionCardsView(PermissionCardSource& source, double width);

}  // namespace quorvane
