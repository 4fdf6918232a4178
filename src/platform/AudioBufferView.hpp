#pragma once

#include <cstdint>

namespace quorvane {

// One buffer of an audio I/O cycle, laid out exactly like the HAL's AudioBuffer so the macOS
// layer can hand the HAL's buffer lists to portable code without copying.
struct AudioBufferView {
    std::uint32_t numberChannels = 0;
    std::uint32_t dataByteSize = 0;
    void* data = nullptr;
};

}  // namespace quorvane
