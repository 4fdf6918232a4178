#include "mac/MacKeyboardLayout.hpp"

#include <cassert>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

namespace {

// Virtual key codes of the keys that type characters all lie below this.
constexpr UInt16 kKeyCodeCount = 128;
constexpr UniCharCount kMaxLength = 8;

}  // namespace

std::map<std::uint16_t, std::u16string> MacKeyboardLayout::characters() {
    // Text Input Sources are not thread safe and belong to the main thread.
    assert([NSThread isMainThread]);
    std::map<std::uint16_t, std::u16string> result;
    const auto layout = CFRef<TISInputSourceRef>::adopt(TISCopyCurrentKeyboardLayoutInputSource());
    if (!layout) {
        return result;
    }
    // A Get: the data belongs to the input source, which outlives its use here. Layouts with
    // only old 'KCHR' data answer NULL.
    const auto data = static_cast<CFDataRef>(
        TISGetInputSourceProperty(layout.get(), kTISPropertyUnicodeKeyLayoutData));
    if (!data) {
        return result;
    }
    const auto* keyLayout = reinterpret_cast<const UCKeyboardLayout*>(CFDataGetBytePtr(data));
    const UInt32 keyboardType = LMGetKbdType();
    for (UInt16 keyCode = 0; keyCode < kKeyCodeCount; ++keyCode) {
        UInt32 deadKeyState = 0;
        UniChar characters[kMaxLength] = {};
        UniCharCount length = 0;
        // No modifiers; dead keys (´ on many European layouts) answer their own character
        // instead of waiting for the next key.
        const OSStatus status = UCKeyTranslate(keyLayout, keyCode, kUCKeyActionDown, 0,
                                               keyboardType, kUCKeyTranslateNoDeadKeysMask,
                                               &deadKeyState, kMaxLength, &length, characters);
        if (status == noErr && length > 0) {
            result[keyCode] = std::u16string(characters, characters + length);
        }
    }
    return result;
}

}  // namespace quorvane
