#include "audio/CoreAudioError.hpp"

namespace quorvane {

CoreAudioError::CoreAudioError(OSStatus status, std::string operation)
    : status_(status),
      operation_(std::move(operation)),
      description_(operation_ + " failed (OSStatus " + std::to_string(status) + ")") {}

CoreAudioError CoreAudioError::reading(OSStatus status, std::uint32_t selector) {
    return {status, "Reading property " + std::to_string(selector)};
}

CoreAudioError CoreAudioError::sizing(OSStatus status, std::uint32_t selector) {
    return {status, "Sizing property " + std::to_string(selector)};
}

CoreAudioError CoreAudioError::writing(OSStatus status, std::uint32_t selector) {
    return {status, "Writing property " + std::to_string(selector)};
}

}  // namespace quorvane
