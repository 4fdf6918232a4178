#pragma once

#include <string>

namespace quorvane {

// An installed application as the leftover search knows it.
struct AppIdentity {
    std::string bundleID;
    // The name Finder shows ("Safari"); may be empty.
    std::string name;
    // The bundle itself; empty when only the identifier is known.
    std::string bundlePath;
};

}  // namespace quorvane
