#include <gtest/gtest.h>

#include <algorithm>

#include "tools/windows/LayoutRestorePlan.hpp"
#include "tools/windows/ScreenMemory.hpp"
#include "tools/windows/WindowSnapshots.hpp"

namespace quorvane {
namespace {

// A 1440×900 laptop with its menu bar, and a 1920×1080 monitor to its right, tops aligned
// (accessibility frame (1440, 0, 1920, 1080)).
const DisplayLayout::Display kLaptop{{0, 0, 1440, 900}, {0, 0, 1440, 875}, "laptop"};
const DisplayLayout::Display kMonitor{
    {1440, -180, 1920, 1080}, {1440, -180, 1920, 1080}, "monitor"};

WindowRecord record(std::string bundleID, std::string title, Rect frame) {
    return {bundleID, bundleID + " app", std::move(title), frame};
}

TEST(WindowArrangement, SnapshotsSurviveTheirJsonAndRefuseDamagedText) {
    WindowSnapshot snapshot{{"monitor", "laptop"},
                            {record("com.example.mail", "Inbox — 3 unread", {10, 35, 800, 600}),
                             record("com.example.editor", "", {1500, 10, 900.5, 700})},
                            800'000'000.5};
    EXPECT_EQ(snapshot.displayKey(), "laptop+monitor") << "the order of the displays is no part";
    WindowSnapshots shelf;
    shelf.put("Writing", snapshot);
    shelf.put(snapshot.displayKey(), snapshot);
    const auto back = WindowSnapshots::decode(shelf.encode());
    ASSERT_TRUE(back);
    ASSERT_EQ(back->all().size(), 2u);
    std::sort(snapshot.displays.begin(), snapshot.displays.end());
    EXPECT_EQ(*back->find("Writing"), snapshot);
    EXPECT_EQ(back->find("Writing")->bundleIDs(),
              (std::vector<std::string>{"com.example.mail", "com.example.editor"}));

    for (const char* damaged :
         {"", "[]", R"({"x": 1})", R"({"x": {"displays": [], "windows": [], "date": "today"}})",
          R"({"x": {"displays": [], "date": 1, "windows": [{"bundleID": "a", "appName": "A",
             "title": "", "frame": {"x": 0, "y": 0, "width": -5, "height": 10}}]}})"}) {
        EXPECT_FALSE(WindowSnapshots::decode(damaged)) << damaged;
    }
}

TEST(WindowArrangement, RestoringPutsRunningAppsWindowsBackInsideTheDisplays) {
    const DisplayLayout displays({kLaptop, kMonitor});
    const std::vector<WindowRecord> saved = {
        record("com.example.mail", "Inbox", {1600, 100, 1000, 700}),
        record("com.example.mail", "Drafts", {100, 100, 600, 400}),
        record("com.example.quit", "Gone", {50, 50, 300, 300}),
        // Saved before the Dock grew: its bottom now sticks out of the usable area.
        record("com.example.editor", "notes.txt", {200, 400, 700, 700}),
    };
    const std::vector<WindowRecord> open = {
        record("com.example.mail", "Drafts", {0, 25, 600, 400}),
        record("com.example.mail", "Inbox", {0, 25, 1000, 700}),
        record("com.example.editor", "notes.txt", {0, 25, 700, 700}),
        record("com.example.other", "", {0, 25, 500, 500}),
    };
    const auto moves = LayoutRestorePlan::make(saved, open, displays);
    EXPECT_EQ(moves, (std::vector<LayoutRestorePlan::Move>{
                         {0, {100, 100, 600, 400}},
                         {1, {1600, 100, 1000, 700}},
                         {2, {200, 200, 700, 700}},
                     }))
        << "matched by title, the quit app's window skipped, the editor kept above the bottom";

    // Untitled windows match in order; one already in place is not touched.
    const auto untitled = LayoutRestorePlan::make(
        {record("t", "", {10, 30, 400, 300}), record("t", "", {500, 30, 400, 300})},
        {record("t", "", {10, 30, 400, 300}), record("t", "", {0, 0, 400, 300})}, displays);
    EXPECT_EQ(untitled, (std::vector<LayoutRestorePlan::Move>{{1, {500, 30, 400, 300}}}));

    // Saved on the monitor, restored with the laptop alone: pulled onto the laptop, shrunk.
    const auto alone =
        LayoutRestorePlan::make({record("m", "", {2000, 0, 1600, 1000})},
                                {record("m", "", {0, 25, 500, 500})}, DisplayLayout({kLaptop}));
    EXPECT_EQ(alone, (std::vector<LayoutRestorePlan::Move>{{0, {0, 25, 1440, 875}}}));
}

TEST(WindowArrangement, NewWindowsGoToTheRememberedDisplayOrTheMainOne) {
    const DisplayLayout both({kLaptop, kMonitor});
    ScreenMemory memory;
    memory.remember("com.example.mail", {1540, 20, 800, 600}, both);
    memory.remember("com.example.nowhere", {9000, 9000, 10, 10}, both);
    EXPECT_EQ(memory.places().size(), 1u) << "a frame on no display is not remembered";

    const Rect fresh(20, 40, 640, 480);
    EXPECT_EQ(memory.placement("com.example.mail", fresh, both, false), Rect(1540, 20, 800, 600));
    EXPECT_EQ(memory.placement("com.example.mail", fresh, both, true), Rect(1540, 20, 640, 480))
        << "keeping its own size, it only moves";
    EXPECT_EQ(memory.placement("com.example.mail", {1540, 20, 800, 600}, both, false), std::nullopt)
        << "already there";
    EXPECT_EQ(memory.placement("com.example.unknown", fresh, both, false), std::nullopt);

    // The monitor unplugged: the same spot relative to the main display, inside its usable area.
    const DisplayLayout laptop({kLaptop});
    EXPECT_EQ(memory.placement("com.example.mail", fresh, laptop, false), Rect(100, 25, 800, 600))
        << "below the menu bar";
    // Plugged in again elsewhere (now left of the laptop): found by its identifier.
    const DisplayLayout moved(
        {kLaptop, {{-1920, 0, 1920, 1080}, {-1920, 0, 1920, 1080}, "monitor"}});
    EXPECT_EQ(memory.placement("com.example.mail", fresh, moved, false),
              Rect(-1820, -160, 800, 600));

    const auto back = ScreenMemory::decode(memory.encode());
    ASSERT_TRUE(back);
    EXPECT_EQ(back->places(), memory.places());
    EXPECT_FALSE(ScreenMemory::decode(R"({"a": {"displayID": 3}})"));
}

TEST(WindowArrangement, FramesAreKeptInsideTheDisplayTheyMostlyShowOn) {
    const DisplayLayout both({kLaptop, kMonitor});
    EXPECT_EQ(both.clampToVisibleArea({1300, 100, 400, 300}), Rect(1440, 100, 400, 300))
        << "straddling: wholly onto the display holding its centre";
    EXPECT_EQ(both.clampToVisibleArea({-350, 500, 400, 300}), Rect(0, 500, 400, 300))
        << "mostly off every display: pulled onto the one it touches";
    EXPECT_EQ(both.clampToVisibleArea({1000, -50, 400, 300}), Rect(1000, 25, 400, 300))
        << "not under the menu bar";
    EXPECT_EQ(both.clampToVisibleArea({3000, 900, 600, 400}), Rect(2760, 680, 600, 400));
    EXPECT_EQ(DisplayLayout({}).clampToVisibleArea({5, 5, 10, 10}), Rect(5, 5, 10, 10));
    EXPECT_EQ(both.indexOf("monitor"), 1u);
    EXPECT_EQ(both.indexOf(""), std::nullopt) << "an unknown display matches nothing";
}

}  // namespace
}  // namespace quorvane
