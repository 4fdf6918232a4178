#pragma once

#include "platform/HotKeySystem.hpp"

namespace quorvane {

// Carbon hot keys on the application event target, serviced by the main run loop.
class MacHotKeySystem final : public HotKeySystem {
public:
    MacHotKeySystem() = default;
    MacHotKeySystem(const MacHotKeySystem&) = delete;
    MacHotKeySystem& operator=(const MacHotKeySystem&) = delete;
    // Removes the handler, which carries this object as its user data.
    ~MacHotKeySystem() override;

    std::int32_t installHandler(PressedHandler handler) override;
    std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                std::uint32_t signature, std::uint32_t id, Ref& ref) override;
    std::int32_t unregisterHotKey(Ref ref) override;

private:
    PressedHandler handler_;
    // An EventHandlerRef, kept opaque so that this header needs no Carbon.
    void* installed_ = nullptr;
};

}  // namespace quorvane
