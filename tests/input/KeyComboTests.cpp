#include "input/KeyCombo.hpp"

#include <gtest/gtest.h>

#include <unordered_set>

#include "platform/EventField.hpp"
#include "portable/MemoryPreferences.hpp"
#include "support/FakeEvent.hpp"

namespace quorvane {
namespace {

using namespace modifierFlag;

std::optional<KeyCombo> fromKey(std::uint32_t keyCode, std::uint64_t flags,
                                std::string characters) {
    return KeyCombo::make(FakeEvent::keyDown(keyCode, flags, std::move(characters)));
}

TEST(KeyCombo, ShortcutsNeedControlOptionOrCommandUnlessTheKeyIsAFunctionKey) {
    EXPECT_FALSE(fromKey(0, shift, "a")) << "⇧A types a capital, it is no shortcut";
    EXPECT_FALSE(fromKey(0, 0, "a"));
    EXPECT_EQ(fromKey(0, control, "a"), (KeyCombo{0, control, "A"}));
    EXPECT_EQ(fromKey(0, option, "a")->keyLabel, "A");
    EXPECT_EQ(fromKey(0, command | shift, "a")->modifierFlags, command | shift);
    EXPECT_EQ(fromKey(96, 0, ""), (KeyCombo{96, 0, "F5"})) << "a bare F-key is a shortcut";
    EXPECT_FALSE(fromKey(49, 0, " ")) << "Space is a name, not a function key";
    EXPECT_FALSE(fromKey(3, 0, "f")) << "the letter F is no function key";
    EXPECT_FALSE(fromKey(3, shift, "f")) << "nor is ⇧F";
    EXPECT_EQ(fromKey(3, command, "f"), (KeyCombo{3, command, "F"}));

    // Caps lock, the numeric pad and fn are not part of a shortcut.
    EXPECT_EQ(fromKey(123, command | 0x10000 | 0x200000 | 0x800000, "")->modifierFlags, command);
    EXPECT_EQ(fromKey(123, command, "")->keyLabel, "←") << "the table wins over the character";
    EXPECT_FALSE(fromKey(76, command, "\x03")) << "a control character shows as nothing";
    EXPECT_EQ(fromKey(41, option, "ö")->keyLabel, "Ö");
    EXPECT_EQ(fromKey(2, command, "в")->keyLabel, "В");
}

TEST(KeyCombo, DisplayTextPutsModifiersInControlOptionShiftCommandOrder) {
    EXPECT_EQ((KeyCombo{1, command | shift | option | control, "S"}).displayText(), "⌃⌥⇧⌘S");
    EXPECT_EQ((KeyCombo{1, control | option, "S"}).displayText(), "⌃⌥S");
    EXPECT_EQ((KeyCombo{96, 0, "F5"}).displayText(), "F5");

    std::unordered_set<KeyCombo> set{{1, command, "S"}, {1, command, "S"}, {1, command, "s"}};
    EXPECT_EQ(set.size(), 2u) << "equal and hashed over all three fields";
}

TEST(KeyCombo, StoredNoShortcutSurvivesWhileMissingOrUnreadableDataGivesTheDefault) {
    MemoryPreferences preferences;
    const KeyCombo fallback{9, command | shift, "V"};
    EXPECT_EQ(KeyCombo::load(preferences, "clipboard.shortcut", fallback), fallback);

    KeyCombo::save(preferences, std::nullopt, "clipboard.shortcut");
    EXPECT_EQ(preferences.data("clipboard.shortcut"), (PreferenceValue::Data{'n', 'u', 'l', 'l'}));
    EXPECT_EQ(KeyCombo::load(preferences, "clipboard.shortcut", fallback), std::nullopt);

    const KeyCombo chosen{40, control | option, "K"};
    KeyCombo::save(preferences, chosen, "clipboard.shortcut");
    EXPECT_EQ(KeyCombo::load(preferences, "clipboard.shortcut", fallback), chosen);
    const auto data = *preferences.data("clipboard.shortcut");
    EXPECT_EQ(Json::parse(std::string(data.begin(), data.end())),
              Json::parse(R"({"keyCode":40,"keyLabel":"K","modifierFlags":786432})"));

    const auto bytes = [](std::string_view text) {
        return PreferenceValue(PreferenceValue::Data(text.begin(), text.end()));
    };
    for (const PreferenceValue& damaged :
         {bytes("{\"keyCode\""), PreferenceValue("⌘V"), bytes("{}"),
          bytes(R"({"keyCode":-1,"modifierFlags":0,"keyLabel":"A"})")}) {
        preferences.set("clipboard.shortcut", damaged);
        EXPECT_EQ(KeyCombo::load(preferences, "clipboard.shortcut", fallback), fallback);
        EXPECT_EQ(preferences.object("clipboard.shortcut"), damaged) << "left as it was";
    }

    // Flag bits beyond the four modifiers are dropped on load; what is then no shortcut at all
    // (only Caps Lock on a letter) is refused for the default.
    preferences.set("clipboard.shortcut",
                    bytes(R"({"keyCode":40,"modifierFlags":1114112,"keyLabel":"K"})"));
    EXPECT_EQ(KeyCombo::load(preferences, "clipboard.shortcut", fallback),
              (KeyCombo{40, command, "K"}));
    preferences.set("clipboard.shortcut",
                    bytes(R"({"keyCode":40,"modifierFlags":65536,"keyLabel":"K"})"));
    EXPECT_EQ(KeyCombo::load(preferences, "clipboard.shortcut", fallback), fallback);
}

}  // namespace
}  // namespace quorvane
