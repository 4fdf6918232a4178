#pragma once

#include "platform/FinderExtensionChannel.hpp"

namespace quorvane {

// No Finder outside macOS, so no messages ever come.
class PortableFinderExtensionChannel : public FinderExtensionChannel {
public:
    Subscription observe(Handler) override { return {}; }
};

}  // namespace quorvane
