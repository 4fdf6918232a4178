#include "input/KeyCombo.hpp"

#include <array>
#include <utility>

#include "base/Utf8.hpp"
#include "platform/Event.hpp"
#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

constexpr std::array<std::pair<std::uint32_t, std::string_view>, 26> kKeyNames = {{
    {123, "←"},  {124, "→"},  {126, "↑"},   {125, "↓"},   {36, "↩"},    {48, "⇥"},  {49, "Space"},
    {51, "⌫"},   {117, "⌦"},  {53, "⎋"},    {115, "↖"},   {119, "↘"},   {116, "⇞"}, {121, "⇟"},
    {122, "F1"}, {120, "F2"}, {99, "F3"},   {118, "F4"},  {96, "F5"},   {97, "F6"}, {98, "F7"},
    {100, "F8"}, {101, "F9"}, {109, "F10"}, {103, "F11"}, {111, "F12"},
}};

// The code point at the start of well-formed UTF-8 of `length` bytes.
char32_t decode(std::string_view text, std::size_t length) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (length == 1) {
        return byte(0);
    }
    char32_t value = byte(0) & (0xFF >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        value = (value << 6) | (byte(i) & 0x3F);
    }
    return value;
}

// Upper case for the letters keyboard layouts type: Latin (with the Latin-1 accents), Greek and
// Cyrillic. Control characters are dropped, since they show as nothing.
std::string upperCased(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t length = utf8::sequenceLength(text);
        if (length == 0) {
            text.remove_prefix(1);
            continue;
        }
        char32_t c = decode(text, length);
        text.remove_prefix(length);
        if (c < 0x20 || c == 0x7F) {
            continue;
        }
        if ((c >= U'a' && c <= U'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7) ||
            (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) || (c >= 0x430 && c <= 0x44F)) {
            c -= 0x20;
        } else if (c >= 0x450 && c <= 0x45F) {
            c -= 0x50;
        }
        utf8::appendCodePoint(result, c);
    }
    return result;
}

std::optional<std::uint64_t> unsignedMember(const Json& json, std::string_view key,
                                            std::uint64_t limit) {
    const Json* member = json.find(key);
    const auto value = member ? member->integer() : std::nullopt;
    if (!value || *value < 0 || static_cast<std::uint64_t>(*value) > limit) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(*value);
}

// What may be a global shortcut: a function key alone, or any key with ⌃, ⌥ or ⌘ (⇧ alone
// would take a capital letter away from every app).
bool isShortcut(std::string_view label, std::uint64_t modifiers) {
    const bool isFunctionKey = label.size() > 1 && label.front() == 'F';
    const bool hasCommandModifier =
        (modifiers & (modifierFlag::control | modifierFlag::option | modifierFlag::command)) != 0;
    return isFunctionKey || hasCommandModifier;
}

}  // namespace

std::optional<std::string_view> KeyCombo::keyName(std::uint32_t keyCode) {
    for (const auto& [code, name] : kKeyNames) {
        if (code == keyCode) {
            return name;
        }
    }
    return std::nullopt;
}

std::optional<KeyCombo> KeyCombo::make(const Event& keyDown) {
    const auto keyCode =
        static_cast<std::uint32_t>(keyDown.integerField(eventField::keyboardKeycode));
    // Reading the typed characters asks the system; keys with a name do not need them.
    return make(keyCode, keyDown.flags(),
                keyName(keyCode) ? std::string() : keyDown.charactersIgnoringModifiers());
}

std::optional<KeyCombo> KeyCombo::make(std::uint32_t keyCode, std::uint64_t flags,
                                       std::string_view characters) {
    const auto name = keyName(keyCode);
    std::string label = name ? std::string(*name) : upperCased(characters);
    if (label.empty()) {
        return std::nullopt;
    }
    if (!isShortcut(label, flags)) {
        return std::nullopt;
    }
    return KeyCombo{keyCode, flags & modifierFlag::mask, std::move(label)};
}

std::string KeyCombo::displayText() const {
    std::string text;
    if ((modifierFlags & modifierFlag::control) != 0) {
        text += "⌃";
    }
    if ((modifierFlags & modifierFlag::option) != 0) {
        text += "⌥";
    }
    if ((modifierFlags & modifierFlag::shift) != 0) {
        text += "⇧";
    }
    if ((modifierFlags & modifierFlag::command) != 0) {
        text += "⌘";
    }
    return text + keyLabel;
}

Json KeyCombo::toJson() const {
    Json json = Json::emptyObject();
    json.set("keyCode", Json(keyCode));
    json.set("modifierFlags", Json(modifierFlags));
    json.set("keyLabel", Json(keyLabel));
    return json;
}

std::optional<KeyCombo> KeyCombo::fromJson(const Json& json) {
    const auto keyCode = unsignedMember(json, "keyCode", 0xFFFFFFFF);
    const auto flags = unsignedMember(json, "modifierFlags", UINT64_MAX);
    const Json* label = json.find("keyLabel");
    if (!keyCode || !flags || label == nullptr || label->string() == nullptr) {
        return std::nullopt;
    }
    // Other flag bits (a device bit, Caps Lock, Fn) would make a combo that is displayed as its
    // bare key yet registered differently: keep the four modifiers, and refuse what is then no
    // shortcut at all.
    const std::uint64_t modifiers = *flags & modifierFlag::mask;
    if (!isShortcut(*label->string(), modifiers)) {
        return std::nullopt;
    }
    return KeyCombo{static_cast<std::uint32_t>(*keyCode), modifiers, *label->string()};
}

std::optional<KeyCombo> KeyCombo::load(const Preferences& preferences, std::string_view key,
                                       const std::optional<KeyCombo>& defaultCombo) {
    const auto data = preferences.data(key);
    if (!data) {
        return defaultCombo;
    }
    const auto json =
        Json::parse(std::string_view(reinterpret_cast<const char*>(data->data()), data->size()));
    if (!json) {
        return defaultCombo;
    }
    if (json->isNull()) {
        return std::nullopt;
    }
    const auto combo = fromJson(*json);
    return combo ? combo : defaultCombo;
}

void KeyCombo::save(Preferences& preferences, const std::optional<KeyCombo>& combo,
                    std::string_view key) {
    const std::string text = combo ? combo->toJson().serialize() : Json().serialize();
    preferences.set(key, PreferenceValue::Data(text.begin(), text.end()));
}

}  // namespace quorvane
