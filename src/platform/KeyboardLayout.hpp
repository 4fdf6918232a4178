#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/Subscription.hpp"
#include "platform/InputSource.hpp"

namespace quorvane {

// The keyboard layout the user types with right now. Shortcuts name physical keys, while
// people think of letters, so a default such as ⌃⌥U has to find where "u" sits today.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    // What each key types with no modifiers held, by virtual key code, as UTF-16. Empty when
    // there is no current layout or it carries no Unicode layout data.
    virtual std::map<std::uint16_t, std::u16string> characters() = 0;

    // Text Input Sources beyond the layout's characters. Where there are no input sources (the
    // command line), the list is empty and nothing can be selected.

    // The keyboard input sources the user enabled and can select, in the system's order.
    virtual std::vector<InputSource> inputSources() { return {}; }
    // The id of the keyboard input source selected now (TISCopyCurrentKeyboardInputSource).
    virtual std::optional<std::string> currentInputSourceID() { return std::nullopt; }
    // Selects an enabled input source by id (TISSelectInputSource); false when there is no such
    // source or the system refused.
    virtual bool selectInputSource(const std::string& /*id*/) { return false; }
    // Called on the main thread after the selected keyboard input source changed, whoever
    // changed it (the distributed kTISNotifySelectedKeyboardInputSourceChanged).
    [[nodiscard]] virtual Subscription observeInputSourceChanges(
        std::function<void()> /*handler*/) {
        return {};
    }
};

}  // namespace quorvane
