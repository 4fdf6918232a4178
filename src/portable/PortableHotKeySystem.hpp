#pragma once

#include "platform/HotKeySystem.hpp"

namespace quorvane {

// No global shortcuts outside macOS: every registration is refused.
class PortableHotKeySystem : public HotKeySystem {
public:
    // Carbon's eventHotKeyInvalidErr.
    static constexpr std::int32_t kUnsupported = -9879;

    std::int32_t installHandler(PressedHandler) override { return 0; }
    std::int32_t registerHotKey(std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t,
                                Ref&) override {
        return kUnsupported;
    }
    std::int32_t unregisterHotKey(Ref) override { return 0; }
};

}  // namespace quorvane
