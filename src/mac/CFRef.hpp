#pragma once

#include <type_traits>
#include <utility>

#include "mac/MacFrameworks.h"

namespace quorvane {

// Owns one Core Foundation reference. ARC leaves CF objects alone, so every CF object the macOS
// layer keeps is held here, and each call site says whether it takes over a +1 reference
// (from a Create or Copy function) or adds one to a borrowed +0 reference (from a Get function
// or an exported constant).
template <typename Ref>
class CFRef {
    static_assert(std::is_pointer_v<Ref>, "CFRef holds a CF reference type such as CFStringRef");

public:
    CFRef() = default;

    // Takes over the reference a Create or Copy function returned. NULL gives an empty holder.
    [[nodiscard]] static CFRef adopt(Ref ref) noexcept { return CFRef(ref); }
    // Adds a reference to one this code does not own (a Get result or a constant).
    [[nodiscard]] static CFRef retain(Ref ref) noexcept {
        if (ref) {
            CFRetain(ref);
        }
        return CFRef(ref);
    }

    CFRef(const CFRef& other) noexcept : ref_(other.ref_) {
        if (ref_) {
            CFRetain(ref_);
        }
    }
    CFRef(CFRef&& other) noexcept : ref_(std::exchange(other.ref_, nullptr)) {}
    CFRef& operator=(CFRef other) noexcept {
        std::swap(ref_, other.ref_);
        return *this;
    }
    ~CFRef() { reset(); }

    Ref get() const noexcept { return ref_; }
    explicit operator bool() const noexcept { return ref_ != nullptr; }

    // Gives the reference to the caller, who must balance it: CFRelease, another adopt, or
    // CFBridgingRelease to hand it to ARC.
    [[nodiscard]] Ref detach() noexcept { return std::exchange(ref_, nullptr); }

    void reset() noexcept {
        // CFRelease(NULL) crashes, so an empty holder releases nothing.
        if (Ref ref = std::exchange(ref_, nullptr)) {
            CFRelease(ref);
        }
    }

private:
    explicit CFRef(Ref ref) noexcept : ref_(ref) {}

    Ref ref_ = nullptr;
};

}  // namespace quorvane
