#include "tools/keyboard/TextSnippetsTool.hpp"

#include <gtest/gtest.h>

#include "base/Utf8.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "platform/PasteboardType.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "tools/keyboard/SnippetConflicts.hpp"
#include "tools/keyboard/SnippetStore.hpp"

namespace quorvane {
namespace {

constexpr int kOtherApp = 500;

std::vector<std::uint8_t> bytes(std::string_view text) {
    return {text.begin(), text.end()};
}

// What the user had copied from Finder, a picture editor and a word processor:
// several items, several types each, bytes that are not text.
std::vector<PasteboardItem> richClipboard() {
    std::vector<std::uint8_t> png = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A, 0, 0, 0xFF};
    return {
        {{{pasteboard_type::fileURL, bytes("file:///Users/ann/a.pdf")},
          {pasteboard_type::string, bytes("a.pdf")}}},
        {{{pasteboard_type::fileURL, bytes("file:///Users/ann/b%20c.txt")}}},
        {{{pasteboard_type::png, png}, {pasteboard_type::tiff, {'M', 'M', 0, 42}}}},
        {{{pasteboard_type::rtf, bytes("{\\rtf1 {\\b bold} text}")},
          {pasteboard_type::html, bytes("<b>bold</b> text")},
          {pasteboard_type::string, bytes("bold text")},
          {"com.example.private", {}}}},
    };
}

struct TextSnippetsTest : ::testing::Test {
    FakePlatform fake;
    std::unique_ptr<TextSnippetsTool> tool;

    void SetUp() override {
        fake.workspace.add(kOtherApp, "com.example.editor", "Editor");
        fake.workspace.frontmostPID = kOtherApp;
    }
    TextSnippetsTool& make() {
        tool =
            std::make_unique<TextSnippetsTool>(catalogDescriptor("text-snippets"), fake.platform());
        return *tool;
    }
    TextSnippetsTool& running() {
        make().start();
        return *tool;
    }
    FakeEventSystem::Tap& tap() { return *fake.events.taps.at(0); }
    bool deliver(FakeEvent event) { return fake.events.deliver(tap(), event.eventType, event); }
    void press(std::uint16_t keyCode, std::uint64_t flags = 0, std::string characters = {}) {
        EXPECT_TRUE(deliver(FakeEvent::keyDown(keyCode, flags, std::move(characters))))
            << "the tap only watches";
    }
    // One key per character, as the user types.
    void type(std::string_view text) {
        std::vector<char32_t> characters;
        Snippet::appendCharacters(text, characters);
        for (const char32_t c : characters) {
            std::string one;
            utf8::appendCodePoint(one, c);
            press(0, 0, one);
        }
    }
    void click() {
        FakeEvent event;
        event.eventType = EventType::leftMouseDown;
        EXPECT_TRUE(deliver(event));
    }
    std::string clipboardText() {
        return fake.pasteboard.string(pasteboard_type::string).value_or("(nothing)");
    }
    // The presses that were posted, as "keyCode/flags", all checked for the tag
    // and the place.
    std::vector<std::string> postedKeyDowns() {
        std::vector<std::string> downs;
        for (const auto& posted : fake.events.posted) {
            EXPECT_EQ(posted.location, EventSystem::Location::hid);
            EXPECT_EQ(posted.event.integerField(eventField::sourceUserData), ownEventTag::key);
            if (posted.event.type() == EventType::keyDown) {
                downs.push_back(
                    std::to_string(posted.event.integerField(eventField::keyboardKeycode)) + "/" +
                    std::to_string(posted.event.flags()));
            }
        }
        return downs;
    }
};

TEST_F(TextSnippetsTest, TypingACodeErasesItPastesTheTextAndPutsTheClipboardBack) {
    fake.pasteboard.copyItems(richClipboard());
    const std::int64_t userCopy = fake.pasteboard.changeCount();
    running();
    EXPECT_EQ(tap().mask, (1u << 10) | (1u << 1) | (1u << 3)) << "key down and both clicks";

    type("Today is ;dat");
    EXPECT_EQ(tool->typed(), "Today is ;dat");
    const double typedAt = fake.scheduler.date();
    type("e");
    EXPECT_EQ(tool->typed(), "");
    fake.scheduler.advance(Seconds(0.02));
    EXPECT_TRUE(fake.events.posted.empty()) << "the app gets to see the code's last key first";

    fake.scheduler.advance(Seconds(0.01));
    const std::vector<std::string> erase(5, "51/0");
    std::vector<std::string> expected = erase;
    expected.insert(expected.end(), {"55/1048576", "9/1048576"});
    EXPECT_EQ(postedKeyDowns(), expected) << "five Deletes, then ⌘V";
    EXPECT_EQ(clipboardText(), "date(" + std::to_string(static_cast<long long>(typedAt)) + ",3,0)")
        << "long date style, no time, of the moment the code was typed";
    EXPECT_EQ(tool->expandedThisSession(), 1);

    // The system hands the posted events to every tap that asked for their type, ours included.
    type(";tim");
    for (auto posted : fake.events.posted) {
        if ((tap().mask & (std::uint64_t{1} << raw(posted.event.eventType))) != 0) {
            EXPECT_TRUE(fake.events.deliver(tap(), posted.event.eventType, posted.event));
        }
    }
    fake.events.posted.clear();
    fake.scheduler.advance(Seconds(0.99));
    EXPECT_NE(fake.pasteboard.items(), richClipboard());
    fake.scheduler.advance(Seconds(0.01));
    EXPECT_EQ(fake.pasteboard.items(), richClipboard()) << "every item and type, byte for byte";
    EXPECT_GT(fake.pasteboard.changeCount(), userCopy);
    EXPECT_EQ(tool->typed(), ";tim") << "our own Deletes and ⌘V never reached the buffer";
    const double timeTypedAt = fake.scheduler.date();
    type("e");
    fake.scheduler.advance(Seconds(0.03));
    EXPECT_EQ(clipboardText(),
              "date(" + std::to_string(static_cast<long long>(timeTypedAt)) + ",0,1)")
        << "short time style, no date";
}

TEST_F(TextSnippetsTest, TwoExpansionsWithinASecondRestoreTheUsersClipboardOnce) {
    fake.pasteboard.copyText("the user's copy");
    running().setSnippets(
        {{Uuid::random(), ";sh", "¯\\_(ツ)_/¯"}, {Uuid::random(), ";cb", "[{clipboard}]"}});
    type(";sh");
    fake.scheduler.advance(Seconds(0.5));
    EXPECT_EQ(clipboardText(), "¯\\_(ツ)_/¯");
    type(";cb");
    fake.scheduler.advance(Seconds(0.5));
    EXPECT_EQ(clipboardText(), "[the user's copy]")
        << "{clipboard} is what the user copied, not the first snippet";
    const std::int64_t beforeRestore = fake.pasteboard.changeCount();
    fake.scheduler.advance(Seconds(0.53));
    EXPECT_EQ(clipboardText(), "the user's copy");
    const std::int64_t restored = fake.pasteboard.changeCount();
    EXPECT_EQ(restored, beforeRestore + 1);
    fake.scheduler.advance(Seconds(5));
    EXPECT_EQ(fake.pasteboard.changeCount(), restored) << "restored exactly once";
    EXPECT_EQ(tool->expandedThisSession(), 2);
}

TEST_F(TextSnippetsTest, ACopyMadeWithinTheSecondIsKept) {
    fake.pasteboard.copyText("old");
    running();
    type(";shrug");
    fake.scheduler.advance(Seconds(0.5));
    fake.pasteboard.copyText("new");
    fake.scheduler.advance(Seconds(1));
    EXPECT_EQ(clipboardText(), "new");

    // And the next expansion saves the new copy, not the long-gone old one.
    type(";shrug");
    fake.scheduler.advance(Seconds(2));
    EXPECT_EQ(clipboardText(), "new");
}

TEST_F(TextSnippetsTest, TurningOffPutsTheClipboardBackAtOnceAndStopsWatching) {
    fake.pasteboard.copyItems(richClipboard());
    running();
    type(";shrug");
    fake.scheduler.advance(Seconds(0.1));
    type(";sh");
    tool->stop();
    EXPECT_EQ(fake.pasteboard.items(), richClipboard());
    EXPECT_TRUE(fake.events.taps.empty());
    EXPECT_EQ(tool->typed(), "");
    EXPECT_FALSE(tool->isRunning());
    tool->stop();
    fake.scheduler.advance(Seconds(2));
    EXPECT_EQ(fake.pasteboard.items(), richClipboard());

    tool->start();
    type(";shr");
    tool->stop();
    fake.events.posted.clear();
    fake.scheduler.advance(Seconds(1));
    EXPECT_TRUE(fake.events.posted.empty()) << "a replacement still waiting is dropped";
}

TEST_F(TextSnippetsTest, SwitchingAppsClickingAndWorkingInQuorvaneEndTheCode) {
    running();
    type(";shr");
    fake.workspace.observers[WorkspaceNotification::didActivateApplication].call(
        &fake.workspace.applications[kOtherApp]);
    EXPECT_EQ(tool->typed(), "");
    type(";sh");
    click();
    EXPECT_EQ(tool->typed(), "");
    type(";sh");
    press(123);  // ←
    type("rug");
    fake.scheduler.advance(Seconds(1));
    EXPECT_TRUE(fake.events.posted.empty());

    RunningApplication quorvane;
    quorvane.pid = fake.workspace.ownPID;
    fake.workspace.observers[WorkspaceNotification::didActivateApplication].call(&quorvane);
    type(";shrug");
    fake.scheduler.advance(Seconds(1));
    EXPECT_TRUE(fake.events.posted.empty()) << "typing a code into Quorvane's own fields";
}

TEST_F(TextSnippetsTest, ARefusedClipboardLeavesTheCodeAndSaysSo) {
    fake.pasteboard.copyText("mine");
    running();
    fake.pasteboard.refuseWrites = true;
    type(";shrug");
    fake.scheduler.advance(Seconds(2));
    EXPECT_TRUE(fake.events.posted.empty());
    EXPECT_EQ(tool->expandedThisSession(), 0);
    EXPECT_EQ(tool->lastError(),
              "Couldn't put the snippet on the clipboard, so "
              "the code was left as you typed it.");
    fake.pasteboard.refuseWrites = false;
    fake.pasteboard.copyText("mine");
    type(";shrug");
    fake.scheduler.advance(Seconds(0.03));
    EXPECT_EQ(tool->lastError(), "");
}

TEST_F(TextSnippetsTest, WithoutPermissionThereIsNoTapAndNothingElseBreaks) {
    fake.events.refuseTaps = true;
    running();
    EXPECT_FALSE(tool->isRunning());
    tool->stop();
}

TEST_F(TextSnippetsTest, ThePageEditsTheListInPlaceAndEveryChangeIsStored) {
    make();
    const auto page = tool->settingsPage();
    ASSERT_EQ(page.sections.size(), 1u);
    const auto& rows = page.sections[0].rows;
    const auto& list = std::get<SettingsRow::EditableList>(rows.at(0).kind);
    EXPECT_FALSE(fake.preferences.object(SnippetStore::kKey)) << "nothing stored until a change";

    list.add();
    list.setKey(3, ";s");
    list.setValue(3, "Best, Ann");
    auto entries = list.entries();
    ASSERT_EQ(entries.size(), 4u);
    EXPECT_EQ(entries[2].warning, SnippetConflicts::warning(";shrug", ";s"));
    EXPECT_EQ(entries[3].warning, "");
    list.move(3, 0);
    list.remove(3);
    entries = list.entries();
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].key, ";s");
    EXPECT_EQ(entries[1].key, ";date");
    EXPECT_EQ(entries[2].key, ";time");
    EXPECT_EQ(SnippetStore::load(fake.preferences).snippets, tool->snippets());

    TextSnippetsTool reloaded(catalogDescriptor("text-snippets"), fake.platform());
    EXPECT_EQ(reloaded.snippets(), tool->snippets()) << "in the user's order";
    EXPECT_NE(SettingsTextRenderer::render(tool->settingsPage()).find(";s → \"Best, Ann\""),
              std::string::npos);
}

TEST_F(TextSnippetsTest, UnreadableStoredSnippetsShowTheDefaultsUntilTheUserChangesTheList) {
    fake.preferences.set(SnippetStore::kKey, PreferenceValue::Data{'n', 'o'});
    make();
    EXPECT_EQ(tool->snippets().size(), 3u);
    EXPECT_NE(tool->lastError(), "");
    tool->start();
    type(";shrug");
    fake.scheduler.advance(Seconds(0.03));
    EXPECT_EQ(tool->expandedThisSession(), 1) << "the defaults work meanwhile";
    EXPECT_EQ(*fake.preferences.data(SnippetStore::kKey), (PreferenceValue::Data{'n', 'o'}));
    tool->removeSnippet(0);
    EXPECT_EQ(tool->lastError(), "");
    EXPECT_EQ(SnippetStore::load(fake.preferences).snippets.size(), 2u);
}

}  // namespace
}  // namespace quorvane
