#pragma once

#include "platform/ScreenCapture.hpp"

namespace quorvane {

// Gives each listed window the scale of the display holding its centre (the last listed, where
// displays overlap); a window on no display keeps its own.
void assignWindowScales(ScreenCapture::Content& content);

}  // namespace quorvane
