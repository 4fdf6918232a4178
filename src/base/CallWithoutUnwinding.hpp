#pragma once

#include <functional>
#include <utility>

namespace quorvane {

// Calls a handler from inside a C framework's callback (IOKit, Carbon, Disk Arbitration, the
// accessibility API). Nothing may unwind into such a framework, which cannot clean up after
// an exception, so one the handler throws ends here.
template <typename Function, typename... Args>
void callWithoutUnwinding(Function&& function, Args&&... args) noexcept {
    try {
        std::invoke(std::forward<Function>(function), std::forward<Args>(args)...);
    } catch (...) {
        // What the handler did before it threw stands; the framework carries on.
    }
}

}  // namespace quorvane
