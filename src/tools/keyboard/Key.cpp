#include "tools/keyboard/Key.hpp"

namespace quorvane {

namespace {

constexpr std::int64_t kKeyboardPage = 0x7;

constexpr std::array<KeyInfo, 26> kKeys = {{
    {Key::capsLock, 0x39, "capsLock", "Caps Lock"},
    {Key::escape, 0x29, "escape", "Escape"},
    {Key::tab, 0x2B, "tab", "Tab"},
    {Key::returnKey, 0x28, "returnKey", "Return"},
    {Key::delete_, 0x2A, "delete", "Delete (Backspace)"},
    {Key::forwardDelete, 0x4C, "forwardDelete", "Forward Delete"},
    {Key::leftControl, 0xE0, "leftControl", "Left Control ⌃"},
    {Key::leftOption, 0xE2, "leftOption", "Left Option ⌥"},
    {Key::leftCommand, 0xE3, "leftCommand", "Left Command ⌘"},
    {Key::leftShift, 0xE1, "leftShift", "Left Shift ⇧"},
    {Key::rightControl, 0xE4, "rightControl", "Right Control ⌃"},
    {Key::rightOption, 0xE6, "rightOption", "Right Option ⌥"},
    {Key::rightCommand, 0xE7, "rightCommand", "Right Command ⌘"},
    {Key::rightShift, 0xE5, "rightShift", "Right Shift ⇧"},
    {Key::home, 0x4A, "home", "Home"},
    {Key::end, 0x4D, "end", "End"},
    {Key::pageUp, 0x4B, "pageUp", "Page Up"},
    {Key::pageDown, 0x4E, "pageDown", "Page Down"},
    {Key::grave, 0x35, "grave", "` ~ (next to Left Shift on some keyboards)"},
    {Key::section, 0x64, "section", "§ ± (left of 1 on some keyboards)"},
    {Key::application, 0x65, "application", "Menu key (Windows keyboards)"},
    {Key::printScreen, 0x46, "printScreen", "Print Screen (Windows keyboards)"},
    {Key::insert, 0x49, "insert", "Insert (Windows keyboards)"},
    {Key::f13, 0x68, "f13", "F13"},
    {Key::f14, 0x69, "f14", "F14"},
    {Key::f15, 0x6A, "f15", "F15"},
}};

}  // namespace

const std::array<KeyInfo, 26>& allKeys() {
    return kKeys;
}

const KeyInfo& info(Key key) {
    return kKeys[static_cast<std::size_t>(key)];
}

std::string_view rawValue(Key key) {
    return info(key).name;
}

std::string_view label(Key key) {
    return info(key).label;
}

std::optional<Key> keyFromRawValue(std::string_view name) {
    for (const auto& entry : kKeys) {
        if (entry.name == name) {
            return entry.key;
        }
    }
    return std::nullopt;
}

std::int64_t hidValue(Key key) {
    return (kKeyboardPage << 32) + info(key).usage;
}

}  // namespace quorvane
