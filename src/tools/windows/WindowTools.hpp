#pragma once

#include "app/ToolFactory.hpp"

namespace quorvane {

// The windows tools whose behaviour is built, by id; the catalog uses a planned stand-in for the
// rest.
const ToolFactories& windowsTools();

}  // namespace quorvane
