#pragma once

#include <functional>

#include "platform/AudioHardware.hpp"

namespace quorvane {

// One registration of a HAL property listener, owned: it is added when this is created and
// removed, with the very same block, address and queue, when this is destroyed. Owners stop
// listening by dropping or replacing the listener. The handler runs on the main thread.
class PropertyListener {
public:
    PropertyListener(AudioHardware& hardware, AudioObjectID object, AudioPropertyAddress address,
                     std::function<void()> handler);
    ~PropertyListener();
    PropertyListener(const PropertyListener&) = delete;
    PropertyListener& operator=(const PropertyListener&) = delete;

    AudioObjectID objectID() const { return objectID_; }
    const AudioPropertyAddress& address() const { return address_; }
    // False when the HAL refused the registration; such a listener never fires.
    bool isRegistered() const { return registered_; }

private:
    AudioHardware& hardware_;
    AudioObjectID objectID_;
    AudioPropertyAddress address_;
    AudioHardware::ListenerID block_ = 0;
    bool registered_ = false;
};

}  // namespace quorvane
