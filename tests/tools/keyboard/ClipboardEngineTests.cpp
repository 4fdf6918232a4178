#include <gtest/gtest.h>

#include "tools/keyboard/ClipText.hpp"
#include "tools/keyboard/ClipboardHistory.hpp"
#include "tools/keyboard/ClipboardListModel.hpp"
#include "tools/keyboard/ClipboardPanelPlacement.hpp"
#include "tools/keyboard/ClipboardRules.hpp"
#include "tools/keyboard/MouseTrigger.hpp"

namespace quorvane {
namespace {

ClipItem text(const std::string& value, double date = 0) {
    ClipItem item;
    item.id = Uuid::random();
    item.text = value;
    item.date = date;
    return item;
}

ClipItem image(const std::string& hash) {
    ClipItem item;
    item.id = Uuid::random();
    item.kind = ClipItem::Kind::image;
    item.imageType = "public.png";
    item.imageHash = hash;
    return item;
}

ClipItem files(std::vector<std::string> paths) {
    ClipItem item;
    item.id = Uuid::random();
    item.kind = ClipItem::Kind::files;
    item.filePaths = std::move(paths);
    return item;
}

TEST(ClipboardHistory, SameContentMovesTheOldItemForward) {
    ClipboardHistory history(50);
    const ClipItem first = text("hello", 10);
    history.insert(first);
    history.insert(text("other", 20));
    ClipItem again = text("hello", 30);
    again.app = "com.example.editor";
    EXPECT_TRUE(history.insert(again).empty());
    ASSERT_EQ(history.items().size(), 2u);
    EXPECT_EQ(history.items()[0].id, first.id) << "the old id stays";
    EXPECT_EQ(history.items()[0].date, 30);
    EXPECT_EQ(history.items()[0].app, "com.example.editor");

    // Without an app of its own, the new sighting keeps the old one's.
    history.insert(text("hello", 40));
    EXPECT_EQ(history.items()[0].app, "com.example.editor");

    const ClipItem picture = image("ab");
    history.insert(picture);
    const ClipItem samePicture = image("ab");
    EXPECT_EQ(history.insert(samePicture), std::vector<Uuid>{samePicture.id})
        << "the new copy's file goes, the old one's stays";
    EXPECT_EQ(history.items()[0].id, picture.id);

    // Hashless images are never the same; texts and files compare their values.
    ClipItem noHash = image("");
    noHash.imageHash.reset();
    EXPECT_FALSE(noHash.sameContent(noHash));
    EXPECT_TRUE(files({"/a", "/b"}).sameContent(files({"/a", "/b"})));
    EXPECT_FALSE(files({"/a", "/b"}).sameContent(files({"/b", "/a"})));
    EXPECT_FALSE(text("x").sameContent(files({"x"})));
}

TEST(ClipboardHistory, TrimmingDropsTheOldestAndNamesTheirImages) {
    ClipboardHistory history(3);
    const ClipItem oldPicture = image("1");
    history.insert(oldPicture);
    history.insert(text("a"));
    history.insert(text("b"));
    EXPECT_EQ(history.insert(text("c")), std::vector<Uuid>{oldPicture.id});
    const ClipItem picture = image("2");
    history.insert(picture);
    EXPECT_EQ(history.setMaxItems(1), std::vector<Uuid>{});
    ASSERT_EQ(history.items().size(), 1u);
    EXPECT_EQ(history.items()[0].id, picture.id);
    EXPECT_EQ(history.remove(picture.id), std::vector<Uuid>{picture.id});
    EXPECT_TRUE(history.items().empty());
}

TEST(ClipboardHistory, AClearedClipboardTakesOnlyARecentText) {
    ClipboardHistory history;
    history.insert(text("password", 1000));
    EXPECT_FALSE(history.removeRecentText(1121));
    EXPECT_TRUE(history.removeRecentText(1119));
    EXPECT_TRUE(history.items().empty());
    history.insert(image("x"));
    EXPECT_FALSE(history.removeRecentText(0)) << "only a text goes";
}

TEST(ClipboardRules, PrivacyMarkersAndPasswordManagers) {
    EXPECT_TRUE(ClipboardRules::isPrivate(
        {{"public.utf8-plain-text"}, {"public.png", "org.nspasteboard.ConcealedType"}}))
        << "a marker on the second item counts";
    EXPECT_TRUE(ClipboardRules::isPrivate({{"de.petermaurer.TransientPasteboardType"}}));
    EXPECT_FALSE(ClipboardRules::isPrivate({{"public.utf8-plain-text", "public.rtf"}}));
    EXPECT_TRUE(ClipboardRules::isSkippedApp("com.bitwarden.desktop", {}));
    EXPECT_TRUE(ClipboardRules::isSkippedApp("com.example.chat", {"com.example.chat"}));
    EXPECT_FALSE(ClipboardRules::isSkippedApp(std::nullopt, {}));
    EXPECT_TRUE(ClipboardRules::isCleared(std::nullopt, {}));
    EXPECT_TRUE(ClipboardRules::isCleared("", {}));
    EXPECT_FALSE(ClipboardRules::isCleared("", {"public.png"}));
    EXPECT_FALSE(ClipboardRules::hasVisibleText(" \n\t\u00a0\u3000"));
    EXPECT_TRUE(ClipboardRules::hasVisibleText(" x "));
}

TEST(ClipText, PreviewSearchAndTrimLookOnlyAtWhatTheyNeed) {
    EXPECT_EQ(ClipText::trimmed("\u2028 héllo wörld \n"), "héllo wörld");
    EXPECT_EQ(ClipText::preview("  first line\n\n  second\tline  "), "first line second line");
    EXPECT_EQ(ClipText::preview("añb", 2), "añ") << "cut by characters, not bytes";

    // 200 MB: the preview is short and fast, whatever the size.
    std::string huge(200u << 20, 'x');
    huge.replace(0, 3, "\n\nA");
    EXPECT_EQ(ClipText::preview(huge).size(), 200u);
    EXPECT_EQ(ClipText::trimmed(huge).size(), huge.size() - 2);

    EXPECT_TRUE(ClipText::contains("Hello World", ClipText::fold("WORLD")));
    EXPECT_TRUE(ClipText::contains("ÄPFEL und Birnen", ClipText::fold("äpfel")));
    EXPECT_TRUE(ClipText::contains("ПРИВЕТ", ClipText::fold("привет")));
    EXPECT_FALSE(ClipText::contains("Hello", ClipText::fold("help")));
}

TEST(ClipboardListModel, SearchRowsAndTexts) {
    ClipboardHistory history;
    history.insert(files({"/Users/me/Report.pdf", "/Users/me/notes.txt"}));
    history.insert(image("1"));
    ClipItem styled = text("  Quarterly\nnumbers  ");
    styled.app = "com.example.editor";
    history.insert(styled);
    ClipboardListModel model;
    model.setItems(history.items());
    EXPECT_EQ(model.emptyText(), std::nullopt);
    auto rows = model.rows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].title, "Quarterly numbers");
    EXPECT_EQ(rows[0].number, "1");
    EXPECT_TRUE(rows[0].isSelected);
    EXPECT_EQ(rows[1].symbol, "photo");
    EXPECT_EQ(rows[2].symbol, "doc.text");
    EXPECT_EQ(rows[2].title, "Report.pdf, notes.txt");

    model.setQuery("  SCREENSHOT ");
    EXPECT_EQ(model.shown(), std::vector<std::size_t>{1});
    model.setQuery("report");
    EXPECT_EQ(model.shown(), std::vector<std::size_t>{2});
    model.setQuery("me");  // in the folder, not the names
    EXPECT_TRUE(model.shown().empty());
    EXPECT_EQ(model.emptyText(), "No copies match “me”");
    model.setQuery("");
    EXPECT_EQ(model.shown().size(), 3u);

    ClipboardListModel empty;
    ClipboardHistory none;
    empty.setItems(none.items());
    EXPECT_EQ(empty.emptyText(), "Nothing copied yet");

    for (int i = 0; i < 12; ++i) {
        history.insert(text("item " + std::to_string(i)));
    }
    model.setItems(history.items());
    EXPECT_EQ(model.rows()[8].number, "9");
    EXPECT_EQ(model.rows()[9].number, "");
}

TEST(ClipboardListModel, SearchReadsLongAndNonAsciiTextsWhole) {
    // Matches at the start, across the pieces a long text is read in, and at its very end;
    // upper and lower case in Latin, Greek and Cyrillic; a stray byte does not stop it.
    std::string longText(100'000, 'x');
    longText.replace(31, 6, "Budget");
    longText.replace(50'000, 14, "ΣΤΟΙΧΕΊΑ Ωμέγα");
    longText.replace(longText.size() - 10, 10, "Конецÿ...");
    ClipboardHistory history(10);
    history.insert(text(longText));
    history.insert(text("Äpfel und Birnen"));
    history.insert(text("plain ascii only"));
    ClipboardListModel model;
    model.setItems(history.items());
    const auto shownFor = [&](const std::string& query) {
        model.setQuery(query);
        return model.shown();
    };
    EXPECT_EQ(shownFor("BUDGET"), std::vector<std::size_t>{2});
    EXPECT_EQ(shownFor("στοιχεία ωΜΈΓΑ"), std::vector<std::size_t>{2});
    EXPECT_EQ(shownFor("конец"), std::vector<std::size_t>{2});
    EXPECT_EQ(shownFor("äPFEL"), std::vector<std::size_t>{1});
    EXPECT_EQ(shownFor("ASCII"), std::vector<std::size_t>{0});
    EXPECT_TRUE(shownFor("budgets").empty());
    EXPECT_TRUE(shownFor("äpfelx").empty());
    EXPECT_TRUE(shownFor("xxxxxxxxxxxxxxxxxxxxy").empty())
        << "every pair is there, the word is not";

    // A copy that arrives later is found too, and one that goes is no longer shown.
    history.insert(text("Ünïcödé later"));
    model.setItems(history.items());
    EXPECT_EQ(shownFor("ÜNÏCÖDÉ"), std::vector<std::size_t>{0});
    history.remove(history.items()[0].id);
    model.setItems(history.items());
    EXPECT_TRUE(shownFor("ÜNÏCÖDÉ").empty());
}

TEST(ClipboardListModel, KeysAndSelection) {
    ClipboardHistory history;
    for (int i = 0; i < 3; ++i) {
        history.insert(text(std::to_string(i)));
    }
    ClipboardListModel model;
    model.setItems(history.items());
    using Kind = ClipboardListModel::KeyAction::Kind;
    model.moveSelection(-1);
    EXPECT_EQ(model.selection(), 0u);
    model.moveSelection(5);
    EXPECT_EQ(model.selection(), 2u);

    auto action = model.key(36, 0);
    EXPECT_EQ(action.kind, Kind::paste);
    EXPECT_EQ(action.index, 2u);
    EXPECT_FALSE(action.plainText);
    EXPECT_TRUE(model.key(76, 0x80000 | 0x100).plainText) << "⌥ on keypad Enter";
    EXPECT_EQ(model.key(51, 0x100000).kind, Kind::remove);
    EXPECT_EQ(model.key(51, 0x100000 | 0x20000).kind, Kind::search) << "⌘⇧⌫ is not remove";
    EXPECT_EQ(model.key(51, 0).kind, Kind::search) << "plain delete edits the search";
    EXPECT_EQ(model.key(53, 0).kind, Kind::close);
    EXPECT_EQ(model.key(125, 0).kind, Kind::moveDown);
    EXPECT_EQ(model.key(126, 0).kind, Kind::moveUp);
    action = model.key(25, 0x100000);  // ⌘9
    EXPECT_EQ(action.kind, Kind::paste);
    EXPECT_EQ(action.index, 8u);
    EXPECT_EQ(model.key(19, 0).kind, Kind::search) << "a bare 2 is typing";

    // Hovering selects only when the mouse really moved.
    model.hover(0, {10, 10});
    EXPECT_EQ(model.selection(), 0u);
    model.moveSelection(1);
    model.hover(2, {10, 10});
    EXPECT_EQ(model.selection(), 1u);
    model.hover(2, {10, 12});
    EXPECT_EQ(model.selection(), 2u);

    // Removing the last row keeps the selection inside the list.
    history.remove(history.items()[2].id);
    model.setItems(history.items());
    EXPECT_EQ(model.selection(), 1u);
}

TEST(ClipboardPanelPlacement, StaysInsideTheVisibleFrame) {
    const std::vector<Screen> screens = {{{0, 0, 1440, 900}, {0, 40, 1440, 835}},
                                         {{1440, 0, 1000, 800}, {1440, 0, 1000, 775}}};
    EXPECT_EQ(ClipboardPanelPlacement::frame({100, 700}, screens), Rect(100, 240, 400, 460));
    // Near the bottom: below the anchor would leave the screen, so it opens 30 points above
    // the anchor point, then is held 8 points inside.
    EXPECT_EQ(ClipboardPanelPlacement::frame({100, 100}, screens), Rect(100, 130, 400, 460));
    EXPECT_EQ(ClipboardPanelPlacement::frame({1400, 850}, screens), Rect(1032, 390, 400, 460));
    EXPECT_EQ(ClipboardPanelPlacement::frame({5, 860}, screens), Rect(8, 400, 400, 460));
    // On the second screen, that screen's frame rules.
    EXPECT_EQ(ClipboardPanelPlacement::frame({2400, 300}, screens), Rect(2032, 307, 400, 460));
}

TEST(MouseTrigger, MatchesExactlyItsModifiers) {
    constexpr std::uint64_t shift = 0x20000, control = 0x40000, option = 0x80000,
                            command = 0x100000, capsLock = 0x10000;
    EXPECT_TRUE(triggers(MouseTrigger::controlOption, control | option | capsLock));
    EXPECT_FALSE(triggers(MouseTrigger::controlOption, control | option | shift));
    EXPECT_FALSE(triggers(MouseTrigger::controlOption, control | option | command));
    EXPECT_FALSE(triggers(MouseTrigger::controlOption, control));
    EXPECT_TRUE(triggers(MouseTrigger::command, command));
    EXPECT_FALSE(triggers(MouseTrigger::command, 0));
    EXPECT_TRUE(triggers(MouseTrigger::shift, shift));
    EXPECT_FALSE(triggers(MouseTrigger::off, command));
    EXPECT_EQ(mouseTriggerFrom("controlOption"), MouseTrigger::controlOption);
    EXPECT_EQ(mouseTriggerFrom("bogus"), MouseTrigger::command);
    EXPECT_EQ(mouseTriggerFrom(std::nullopt), MouseTrigger::command);
}

}  // namespace
}  // namespace quorvane
