#pragma once

#include <cstdint>
#include <functional>

namespace quorvane {

// Carbon global hot keys on the application event target. Statuses are OSStatus values; 0 is
// success.
class HotKeySystem {
public:
    // An EventHotKeyRef; 0 for none.
    using Ref = std::uintptr_t;
    using PressedHandler = std::function<void(std::uint32_t id)>;

    virtual ~HotKeySystem() = default;

    // InstallEventHandler for hot-key-pressed events; the handler then gets the id of every
    // hot key pressed, and the press is consumed. Installed once, never removed.
    virtual std::int32_t installHandler(PressedHandler handler) = 0;
    // RegisterEventHotKey with options 0; `ref` is set on success.
    virtual std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t carbonModifiers,
                                        std::uint32_t signature, std::uint32_t id, Ref& ref) = 0;
    virtual std::int32_t unregisterHotKey(Ref ref) = 0;
};

}  // namespace quorvane
