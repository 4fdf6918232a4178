#pragma once

#include <memory>

#include "platform/Archives.hpp"

namespace quorvane {

// libarchive when the build found it, otherwise archives that say they are unavailable.
std::unique_ptr<Archives> makeSystemArchives();

}  // namespace quorvane
