#pragma once

#include <utility>

namespace quorvane {

// Shared by a block registered with the system and the Subscription that removes it. A call
// already on its way when the registration ends (a queued notification, an event in flight)
// may still arrive; the flag turns it away.
template <typename Handler>
struct CancellableHandler {
    explicit CancellableHandler(Handler body) : handler(std::move(body)) {}
    bool cancelled = false;
    Handler handler;
};

}  // namespace quorvane
