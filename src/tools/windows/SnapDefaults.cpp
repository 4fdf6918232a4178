#include "tools/windows/SnapDefaults.hpp"

#include "platform/EventField.hpp"

namespace quorvane {

namespace {

constexpr std::uint64_t kControlOption = modifierFlag::control | modifierFlag::option;

struct DefaultKey {
    SnapAction action;
    std::uint32_t keyCode;  // for letters, the US position used when the layout has no answer
    char letter;            // 0 for keys that type no letter
    std::uint64_t flags;
};

constexpr DefaultKey kDefaults[] = {
    {SnapAction::leftHalf, 123, 0, kControlOption},
    {SnapAction::rightHalf, 124, 0, kControlOption},
    {SnapAction::topHalf, 126, 0, kControlOption},
    {SnapAction::bottomHalf, 125, 0, kControlOption},
    {SnapAction::topLeft, 32, 'u', kControlOption},
    {SnapAction::topRight, 34, 'i', kControlOption},
    {SnapAction::bottomLeft, 38, 'j', kControlOption},
    {SnapAction::bottomRight, 40, 'k', kControlOption},
    {SnapAction::maximize, 36, 0, kControlOption},
    {SnapAction::center, 8, 'c', kControlOption},
    {SnapAction::nextDisplay, 124, 0, kControlOption | modifierFlag::command},
};

}  // namespace

std::optional<std::uint16_t> SnapDefaults::keyCodeTyping(char16_t letter,
                                                         const LayoutCharacters& layout) {
    for (const auto& [keyCode, characters] : layout) {
        if (characters.size() == 1 && characters.front() == letter) {
            return keyCode;
        }
    }
    return std::nullopt;
}

SnapShortcuts SnapDefaults::shortcuts(const LayoutCharacters& layout) {
    SnapShortcuts result;
    for (const DefaultKey& entry : kDefaults) {
        KeyCombo combo{entry.keyCode, entry.flags, {}};
        if (entry.letter != 0) {
            if (const auto code = keyCodeTyping(static_cast<char16_t>(entry.letter), layout)) {
                combo.keyCode = *code;
            }
            combo.keyLabel = std::string(1, static_cast<char>(entry.letter - 'a' + 'A'));
        } else {
            combo.keyLabel = std::string(KeyCombo::keyName(entry.keyCode).value_or(""));
        }
        result[entry.action] = combo;
    }
    return result;
}

}  // namespace quorvane
