#pragma once

// The Finder extension is its own target and the only user of FinderSync, so the framework
// comes in here, on top of the one wrapper the rest of the macOS layer uses.
#include "mac/MacFrameworks.h"
// clang-format off
#import <FinderSync/FinderSync.h>
// clang-format on
