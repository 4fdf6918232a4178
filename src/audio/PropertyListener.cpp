#include "audio/PropertyListener.hpp"

namespace quorvane {

PropertyListener::PropertyListener(AudioHardware& hardware, AudioObjectID object,
                                   AudioPropertyAddress address, std::function<void()> handler)
    : hardware_(hardware), objectID_(object), address_(address) {
    registered_ =
        hardware_.addPropertyListener(objectID_, address_, std::move(handler), block_) == 0;
}

PropertyListener::~PropertyListener() {
    if (registered_) {
        hardware_.removePropertyListener(objectID_, address_, block_);
    }
}

}  // namespace quorvane
