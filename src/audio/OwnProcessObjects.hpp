#pragma once

#include <vector>

#include "platform/AudioHardware.hpp"

namespace quorvane {

class AudioHardware;

// The HAL process objects of the process with this ID (normally Quorvane's own), in the HAL's
// order; empty when the list cannot be read or the process plays no part in it yet.
std::vector<AudioObjectID> processObjectsOf(AudioHardware& hardware, int pid);

}  // namespace quorvane
