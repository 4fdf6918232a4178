#pragma once

namespace quorvane {

// The moment Quorvane itself last brought a window to the front for the user (window drag does,
// when a drag starts). Activations caused by that count as the user's own doing, so the
// user-action query honours the mark like a click. Dates are seconds since 2001-01-01 UTC.
struct UserActionMark {
    // The platform's distant past: 0001-01-01.
    static constexpr double kDistantPast = -63114076800.0;

    double date = kDistantPast;
};

}  // namespace quorvane
