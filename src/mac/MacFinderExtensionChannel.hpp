#pragma once

#include "platform/FinderExtensionChannel.hpp"

namespace quorvane {

// The Finder extension's requests, as distributed notifications whose object is the message:
// a sandboxed sender may not attach a dictionary.
class MacFinderExtensionChannel final : public FinderExtensionChannel {
public:
    Subscription observe(Handler handler) override;
};

}  // namespace quorvane
