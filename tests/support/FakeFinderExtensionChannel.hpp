#pragma once

#include <string>

#include "base/HandlerList.hpp"
#include "platform/FinderExtensionChannel.hpp"

namespace quorvane {

// Messages the test sends as if the Finder extension had.
struct FakeFinderExtensionChannel : FinderExtensionChannel {
    Subscription observe(Handler handler) override { return handlers.add(std::move(handler)); }
    void send(const std::string& message) { handlers.call(message); }

    HandlerList<const std::string&> handlers;
};

}  // namespace quorvane
