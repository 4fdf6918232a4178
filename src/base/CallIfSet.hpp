#pragma once

#include <utility>

namespace quorvane {

// Calls a binding or handler that its owner may leave empty, as rows and ports allow; an empty
// one does nothing. Answers whether it ran, for the caller that reacts to a missing binding
// (a beep, a default).
template <typename Function, typename... Args>
bool callIfSet(const Function& function, Args&&... args) {
    if (!function) {
        return false;
    }
    function(std::forward<Args>(args)...);
    return true;
}

}  // namespace quorvane
