#include "tools/keyboard/SnippetEngine.hpp"

#include <gtest/gtest.h>

#include "base/Utf8.hpp"
#include "platform/EventField.hpp"
#include "tools/keyboard/SnippetConflicts.hpp"

namespace quorvane {
namespace {

constexpr std::uint16_t kLetterKey = 0;  // any key that types a character

Snippet snippet(std::string trigger, std::string text = "x") {
    return {Uuid::random(), std::move(trigger), std::move(text)};
}

struct EngineTest : ::testing::Test {
    SnippetEngine engine;
    std::vector<Snippet> snippets;

    void use(std::vector<Snippet> list) {
        snippets = std::move(list);
        engine.setSnippets(snippets);
    }
    std::optional<SnippetEngine::Expansion> key(std::string_view characters,
                                                std::uint64_t flags = 0) {
        SnippetKey key;
        key.keyCode = kLetterKey;
        key.flags = flags;
        key.characters = characters;
        return engine.handle(key);
    }
    std::optional<SnippetEngine::Expansion> press(std::uint16_t keyCode, std::uint64_t flags = 0) {
        SnippetKey key;
        key.keyCode = keyCode;
        key.flags = flags;
        return engine.handle(key);
    }
    // Types each character as its own key; answers the trigger that fired last, if any.
    std::optional<std::string> type(std::string_view text) {
        std::vector<char32_t> characters;
        Snippet::appendCharacters(text, characters);
        std::optional<std::string> fired;
        for (const char32_t c : characters) {
            std::string one;
            utf8::appendCodePoint(one, c);
            if (const auto expansion = key(one)) {
                fired = snippets[expansion->index].trigger;
                EXPECT_EQ(expansion->deleteCount,
                          Snippet::characterCount(snippets[expansion->index].trigger));
            }
        }
        return fired;
    }
};

TEST_F(EngineTest, TheLongestCodeEndingWhatWasTypedFiresAndEmptiesTheBuffer) {
    use({snippet(";sig"), snippet("sig"), snippet(";shrug"), snippet(";é✓")});
    EXPECT_EQ(type("hello ;si"), std::nullopt);
    EXPECT_EQ(engine.typed(), "hello ;si");
    EXPECT_EQ(type("g"), ";sig") << "longer than \"sig\", which also ends the text";
    EXPECT_EQ(engine.typed(), "");
    EXPECT_EQ(type("sig"), "sig");
    EXPECT_EQ(type("x;é✓"), ";é✓") << "codes are counted in characters, not bytes";
}

TEST_F(EngineTest, OnlyUsableSnippetsFireAndTheFirstOfEqualCodesWins) {
    use({snippet("a"), snippet(";empty", ""), snippet(";dup", "first"), snippet(";dup", "second")});
    EXPECT_EQ(type("a a"), std::nullopt) << "a one-character code never fires";
    EXPECT_EQ(type(";empty"), std::nullopt) << "nor does a snippet with no text";
    type(";du");
    const auto expansion = key("p");
    ASSERT_TRUE(expansion);
    EXPECT_EQ(snippets[expansion->index].text, "first");
}

TEST_F(EngineTest, AShorterCodeThatStartsALongerOneAlwaysWinsAndIsWarnedAbout) {
    use({snippet(";a"), snippet(";ad")});
    EXPECT_EQ(type(";ad"), ";a") << "fires on its second character";
    EXPECT_EQ(engine.typed(), "d");
    const auto warnings = SnippetConflicts::warnings(snippets);
    EXPECT_EQ(warnings[0], "");
    EXPECT_EQ(warnings[1],
              "“;ad” will never work: “;a” fires as soon as you've typed it. Rename one of them.");
}

TEST(SnippetConflicts, OnlyUsableShorterPrefixesOfOtherSnippetsCount) {
    const Uuid shared = Uuid::random();
    const std::vector<Snippet> list = {
        {Uuid::random(), ";x", ""},      // not usable: no text
        {Uuid::random(), ";xyz", "a"},   // ";x" cannot fire, so no warning
        {Uuid::random(), ";ab", "b"},    // same length as the next: no warning either way
        {Uuid::random(), ";ab", "c"},    //
        {Uuid::random(), ";é", "d"},     // a prefix ending inside a character is no prefix
        {Uuid::random(), ";éa", "e"},    // but this one is
        {shared, ";q", "f"},             //
        {shared, ";qq", "g"},            // the same snippet cannot shadow itself
        {Uuid::random(), ";abc;", "h"},  // shadowed by the first ";ab"
    };
    const auto warnings = SnippetConflicts::warnings(list);
    EXPECT_EQ(warnings[1], "");
    EXPECT_EQ(warnings[2], "");
    EXPECT_EQ(warnings[3], "");
    EXPECT_EQ(warnings[4], "");
    EXPECT_EQ(warnings[5], SnippetConflicts::warning(";éa", ";é"));
    EXPECT_EQ(warnings[7], "");
    EXPECT_EQ(warnings[8], SnippetConflicts::warning(";abc;", ";ab"));
}

TEST_F(EngineTest, TheBufferKeepsTheLast64Characters) {
    use({snippet(std::string(65, 'k')), snippet(std::string(64, 'm'))});
    EXPECT_EQ(type(std::string(70, 'k')), std::nullopt) << "a 65-character code never fires";
    EXPECT_EQ(engine.typedCount(), 64u);
    EXPECT_EQ(engine.typed(), std::string(64, 'k'));
    engine.clear();
    EXPECT_EQ(type(std::string(70, 'm')), std::string(64, 'm'));
    EXPECT_TRUE(key("ab🙂cdefgh" + std::string(80, 'z')) == std::nullopt);
    EXPECT_EQ(engine.typedCount(), 64u) << "one key typing many characters is trimmed too";
}

TEST_F(EngineTest, DeleteDropsOneCharacterAndOptionDeleteEverything) {
    use({snippet(";ok")});
    type(";oz");
    press(SnippetEngine::kDeleteKeyCode);
    EXPECT_EQ(engine.typed(), ";o");
    EXPECT_EQ(type("k"), ";ok") << "the corrected code fires";
    type(";o");
    press(SnippetEngine::kDeleteKeyCode, modifierFlag::option);
    EXPECT_EQ(engine.typed(), "");
    press(SnippetEngine::kDeleteKeyCode);
    EXPECT_EQ(engine.typed(), "") << "deleting from an empty buffer is harmless";
}

TEST_F(EngineTest, CaretMovesShortcutsClicksAndOurOwnAppEndTheCode) {
    use({snippet(";ok")});
    for (const std::uint16_t code : {36, 48, 53, 115, 116, 117, 119, 121, 123, 124, 125, 126}) {
        type(";o");
        press(code);
        EXPECT_EQ(type("k"), std::nullopt) << "key code " << code;
    }
    type(";o");
    EXPECT_EQ(key("k", modifierFlag::command), std::nullopt);
    EXPECT_EQ(engine.typed(), "");
    type(";o");
    EXPECT_EQ(key("k", modifierFlag::control), std::nullopt);
    EXPECT_EQ(key("k"), std::nullopt) << "Control ended the code";
    type(";o");
    EXPECT_EQ(key(";", modifierFlag::shift | modifierFlag::option), std::nullopt);
    EXPECT_EQ(engine.typed(), "k;o;") << "Shift and Option are typing";

    engine.clear();
    type(";o");
    SnippetKey click;
    click.type = EventType::leftMouseDown;
    engine.handle(click);
    EXPECT_EQ(type("k"), std::nullopt);

    type(";o");
    SnippetKey inQuorvane;
    inQuorvane.characters = "k";
    inQuorvane.ownAppIsFrontmost = true;
    EXPECT_EQ(engine.handle(inQuorvane), std::nullopt);
    EXPECT_EQ(engine.typed(), "");
}

TEST_F(EngineTest, OurOwnKeyEventsLeaveTheBufferAlone) {
    use({snippet(";ok")});
    type(";o");
    SnippetKey own;
    own.keyCode = SnippetEngine::kDeleteKeyCode;
    own.userData = ownEventTag::key;
    engine.handle(own);
    own.keyCode = 9;  // the V of ⌘V
    own.flags = modifierFlag::command;
    own.characters = "v";
    engine.handle(own);
    EXPECT_EQ(engine.typed(), ";o");
    EXPECT_EQ(type("k"), ";ok");
    EXPECT_EQ(press(122), std::nullopt) << "a key that types nothing changes nothing";
}

TEST_F(EngineTest, ChangingTheListTakesEffectAtOnce) {
    use({snippet(";one")});
    type(";on");
    use({snippet(";onward")});
    EXPECT_EQ(type("e"), std::nullopt);
    EXPECT_EQ(type("ward"), std::nullopt) << "the buffer held \";one\", not \";onward\"";
    EXPECT_EQ(type(";onward"), ";onward");
}

}  // namespace
}  // namespace quorvane
