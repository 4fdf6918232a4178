#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/Json.hpp"

namespace quorvane {

class Event;
class Preferences;

// A keyboard shortcut: a key, the modifiers held with it and what the key is called. Stored as
// the JSON of an optional combo, as data under the owning tool's key, so "no shortcut" is a
// stored choice (JSON null) and not the same as nothing stored.
struct KeyCombo {
    static constexpr std::uint32_t kEscapeKeyCode = 53;

    std::uint32_t keyCode = 0;
    // Only shift, control, option and command are ever kept.
    std::uint64_t modifierFlags = 0;
    std::string keyLabel;

    // From a key-down event. Nothing when the key has no label, or when neither control,
    // option nor command is held and the key is not a function key: shift alone never makes a
    // shortcut, a bare F-key does.
    static std::optional<KeyCombo> make(const Event& keyDown);
    // The same from the parts: `characters` is what the key types without modifiers.
    static std::optional<KeyCombo> make(std::uint32_t keyCode, std::uint64_t flags,
                                        std::string_view characters);
    // The symbol or name of a key that types no character of its own ("←", "Space", "F5").
    static std::optional<std::string_view> keyName(std::uint32_t keyCode);

    // Modifier symbols in the order ⌃⌥⇧⌘, then the label: "⌃⌥S".
    std::string displayText() const;

    Json toJson() const;
    static std::optional<KeyCombo> fromJson(const Json& json);

    // The stored combo or stored "no shortcut"; the default when nothing is stored or what is
    // stored cannot be read. Unreadable data is left as it is.
    static std::optional<KeyCombo> load(const Preferences& preferences, std::string_view key,
                                        const std::optional<KeyCombo>& defaultCombo);
    static void save(Preferences& preferences, const std::optional<KeyCombo>& combo,
                     std::string_view key);

    friend bool operator==(const KeyCombo&, const KeyCombo&) = default;
};

}  // namespace quorvane

template <>
struct std::hash<quorvane::KeyCombo> {
    std::size_t operator()(const quorvane::KeyCombo& combo) const noexcept {
        std::size_t seed =
            std::hash<std::uint64_t>{}((std::uint64_t{combo.keyCode} << 32) ^ combo.modifierFlags);
        return seed ^ (std::hash<std::string>{}(combo.keyLabel) + 0x9e3779b97f4a7c15ULL +
                       (seed << 6) + (seed >> 2));
    }
};
