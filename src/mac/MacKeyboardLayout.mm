#include "mac/MacPorts.hpp"

#include <cassert>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacPropertyList.hpp"
#include "mac/MacStrings.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

namespace {

// Virtual key codes of the keys that type characters all lie below this.
constexpr UInt16 kKeyCodeCount = 128;
constexpr UniCharCount kMaxLength = 8;

// A property that is a CFString, which TISGetInputSourceProperty hands out under the Get rule;
// empty when the source has none.
std::string stringProperty(TISInputSourceRef source, CFStringRef key) {
    return utf8String(static_cast<CFStringRef>(TISGetInputSourceProperty(source, key)));
}

// The enabled keyboard input sources the user can select: layouts and input modes, not the
// palettes (emoji and symbols, the keyboard viewer) nor an input method's unselectable parent.
// unconfirmed: check on a Mac first (TISCreateInputSourceList, kTISPropertyInputSourceCategory,
// kTISCategoryKeyboardInputSource and kTISPropertyInputSourceIsSelectCapable are not in the
// fact sheet; written from Apple's Text Input Source Services reference).
std::vector<CFRef<TISInputSourceRef>> selectableKeyboardSources() {
    NSDictionary* filter = @{
        (__bridge NSString*)
        kTISPropertyInputSourceCategory : (__bridge NSString*)kTISCategoryKeyboardInputSource,
        (__bridge NSString*)kTISPropertyInputSourceIsSelectCapable : @YES,
    };
    // false: only the enabled sources, those in the input menu.
    const auto list =
        CFRef<CFArrayRef>::adopt(TISCreateInputSourceList((__bridge CFDictionaryRef)filter, false));
    std::vector<CFRef<TISInputSourceRef>> sources;
    // The array owns its elements; each is retained to outlive it.
    for (const void* source : list ? arrayValues(list.get()) : std::vector<const void*>()) {
        sources.push_back(CFRef<TISInputSourceRef>::retain(
            static_cast<TISInputSourceRef>(const_cast<void*>(source))));
    }
    return sources;
}

// The current keyboard layout through Text Input Sources and UCKeyTranslate, and the keyboard
// input sources the user enabled. Changes of the selected source arrive as a distributed
// notification, observed through the workspace so they are delivered while Quorvane is not
// the active app.
class MacKeyboardLayout final : public KeyboardLayout {
public:
    explicit MacKeyboardLayout(Workspace& workspace) : workspace_(workspace) {}

    std::map<std::uint16_t, std::u16string> characters() override {
        // Text Input Sources are not thread safe and belong to the main thread.
        assert([NSThread isMainThread]);
        std::map<std::uint16_t, std::u16string> result;
        const auto layout =
            CFRef<TISInputSourceRef>::adopt(TISCopyCurrentKeyboardLayoutInputSource());
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

    std::vector<InputSource> inputSources() override {
        assert([NSThread isMainThread]);
        std::vector<InputSource> sources;
        @autoreleasepool {
            for (const auto& source : selectableKeyboardSources()) {
                sources.push_back({stringProperty(source.get(), kTISPropertyInputSourceID),
                                   stringProperty(source.get(), kTISPropertyLocalizedName)});
            }
        }
        return sources;
    }

    std::optional<std::string> currentInputSourceID() override {
        assert([NSThread isMainThread]);
        const auto source = CFRef<TISInputSourceRef>::adopt(TISCopyCurrentKeyboardInputSource());
        if (!source) {
            return std::nullopt;
        }
        std::string id = stringProperty(source.get(), kTISPropertyInputSourceID);
        return id.empty() ? std::nullopt : std::optional(std::move(id));
    }

    bool selectInputSource(const std::string& id) override {
        assert([NSThread isMainThread]);
        @autoreleasepool {
            for (const auto& source : selectableKeyboardSources()) {
                if (stringProperty(source.get(), kTISPropertyInputSourceID) == id) {
                    // unconfirmed: check on a Mac first (TISSelectInputSource is not in the fact
                    // sheet). Some CJK input methods are reported to take the selection only after
                    // the focus changes.
                    return TISSelectInputSource(source.get()) == noErr;
                }
            }
        }
        return false;
    }

    [[nodiscard]] Subscription observeInputSourceChanges(std::function<void()> handler) override {
        // unconfirmed: check on a Mac first (kTISNotifySelectedKeyboardInputSourceChanged is posted
        // to the distributed notification centre, by Apple's reference; not in the fact sheet).
        return workspace_.observeDistributed(
            utf8String(kTISNotifySelectedKeyboardInputSourceChanged), std::move(handler));
    }

private:
    Workspace& workspace_;
};

}  // namespace

std::unique_ptr<KeyboardLayout> makeMacKeyboardLayout(Workspace& workspace) {
    return std::make_unique<MacKeyboardLayout>(workspace);
}

}  // namespace quorvane
