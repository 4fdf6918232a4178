#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "platform/AudioPropertyAddress.hpp"

namespace quorvane {

// A failed HAL call: what was attempted and the status it answered. Its description is what the
// sound tools show as their last error.
class CoreAudioError : public std::exception {
public:
    CoreAudioError(OSStatus status, std::string operation);

    // "Reading property 1682929012", "Sizing property …", "Writing property …".
    static CoreAudioError reading(OSStatus status, std::uint32_t selector);
    static CoreAudioError sizing(OSStatus status, std::uint32_t selector);
    static CoreAudioError writing(OSStatus status, std::uint32_t selector);

    OSStatus status() const { return status_; }
    const std::string& operation() const { return operation_; }
    // The operation, " failed (OSStatus ", the status in signed decimal, ")".
    const std::string& description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    OSStatus status_;
    std::string operation_;
    std::string description_;
};

}  // namespace quorvane
