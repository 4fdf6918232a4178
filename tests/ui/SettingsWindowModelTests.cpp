#include "ui/SettingsWindowModel.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/LaunchedApp.hpp"
#include "support/ViewNodeSearch.hpp"
#include "ui/ToolStatus.hpp"

namespace quorvane {
namespace {

using Row = SettingsWindowModel::SidebarRow;
using Kind = Row::Kind;

std::vector<std::string> toolIDs(const std::vector<Row>& rows) {
    std::vector<std::string> ids;
    for (const auto& row : rows) {
        if (row.kind == Kind::tool) {
            ids.push_back(row.toolID);
        }
    }
    return ids;
}

bool lists(const std::vector<Row>& rows, const std::string& id) {
    const auto ids = toolIDs(rows);
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

TEST(SettingsWindowModel, TheSidebarGroupsEveryToolUnderItsCategoryInOrder) {
    LaunchedApp launched;
    launched.launchCatalog();
    const auto rows = launched.settings().sidebar();
    ASSERT_EQ(rows.front().kind, Kind::general);
    EXPECT_EQ(launched.settings().selectedRow(), 0u) << "General is selected at first";

    std::vector<std::string> headings;
    std::size_t tools = 0;
    ToolCategory current = ToolCategory::windows;
    for (const auto& row : rows) {
        if (row.kind == Kind::category) {
            headings.push_back(row.title);
            current = *std::find_if(kAllToolCategories.begin(), kAllToolCategories.end(),
                                    [&](ToolCategory c) { return title(c) == row.title; });
        } else if (row.kind == Kind::tool) {
            ++tools;
            EXPECT_EQ(launched.tool(row.toolID).category(), current) << row.toolID;
            EXPECT_EQ(row.isAvailable, launched.tool(row.toolID).isAvailable()) << row.toolID;
        }
    }
    EXPECT_EQ(headings, (std::vector<std::string>{"Windows", "Keyboard", "Mouse & Trackpad",
                                                  "Sound", "Finder & System"}));
    EXPECT_EQ(tools, 68u);
}

TEST(SettingsWindowModel, SearchMatchesEveryWordCaseFoldedOverTheCatalog) {
    LaunchedApp launched;
    launched.launchCatalog();
    SettingsWindowModel& settings = launched.settings();

    settings.setQuery("  WINDOW\tSnapping ");
    auto rows = settings.sidebar();
    EXPECT_TRUE(lists(rows, "window-snap"));
    EXPECT_FALSE(lists(rows, "clipboard-history"));
    EXPECT_NE(rows.front().kind, Kind::general) << "General is not a search result";
    EXPECT_EQ(rows.front().kind, Kind::category);

    settings.setQuery("Clipboard");
    EXPECT_TRUE(lists(settings.sidebar(), "clipboard-history"));
    settings.setQuery("clipboard volume");
    EXPECT_FALSE(lists(settings.sidebar(), "clipboard-history")) << "every word must match";

    settings.setQuery("SOUND");
    for (const auto& tool : launched.registry().tools()) {
        if (tool->category() == ToolCategory::sound) {
            EXPECT_TRUE(lists(settings.sidebar(), tool->id())) << "the category title counts";
        }
    }
    settings.setQuery("zzzz");
    EXPECT_TRUE(settings.sidebar().empty());
    settings.setQuery("");
    EXPECT_EQ(toolIDs(settings.sidebar()).size(), 68u);
}

TEST(SettingsWindowModel, SelectionSurvivesFilteringAndOpeningAToolClearsAHidingSearch) {
    LaunchedApp launched;
    launched.launchCatalog();
    SettingsWindowModel& settings = launched.settings();
    const auto generation = settings.pageGeneration();

    settings.setQuery("clipboard");
    const auto rows = settings.sidebar();
    settings.selectRow(0);  // a heading
    EXPECT_EQ(settings.selectedTool(), nullptr);
    settings.selectRow(1);
    ASSERT_NE(settings.selectedTool(), nullptr);
    EXPECT_EQ(settings.selectedTool()->id(), rows[1].toolID);
    EXPECT_NE(settings.pageGeneration(), generation);

    settings.setQuery("dock");
    EXPECT_FALSE(settings.selectedRow()) << "filtered out, yet its page stays";
    EXPECT_EQ(settings.selectedTool()->id(), rows[1].toolID);

    settings.showTool("battery-limit");
    EXPECT_EQ(settings.query(), "");
    EXPECT_EQ(settings.sidebar()[*settings.selectedRow()].toolID, "battery-limit");
    settings.showGeneral();
    EXPECT_EQ(settings.selectedRow(), 0u);
}

TEST(SettingsWindowModel, TheHeaderSwitchesAvailableToolsOnlyAndSaysWhatTheyWaitFor) {
    LaunchedApp launched;
    launched.add("snap", std::vector<Permission>{Permission::accessibility}).hasControl = true;
    launched.add("later", std::vector<Permission>{Permission::screenRecording}).available = false;
    launched.launch();
    SettingsWindowModel& settings = launched.settings();

    settings.showTool("later");
    EXPECT_TRUE(settings.cards().empty()) << "nothing to grant for a tool that cannot run here";
    auto header = settings.header();
    EXPECT_TRUE(header.hasSwitch);
    EXPECT_FALSE(header.isSwitchable);
    EXPECT_FALSE(header.hasMenuToggle);
    EXPECT_EQ(header.status, ToolStatus::kUnavailable);
    settings.setSwitch(true);
    EXPECT_FALSE(launched.registry().enabledIDs().contains("later"));

    settings.showTool("snap");
    settings.setSwitch(true);
    header = settings.header();
    EXPECT_TRUE(header.isOn);
    EXPECT_EQ(header.status, "Waiting for Accessibility permission");
    ASSERT_EQ(settings.cards().size(), 1u);
    EXPECT_EQ(settings.cards()[0].permission, Permission::accessibility);

    settings.setInMenu(true);
    EXPECT_TRUE(settings.header().isInMenu);
    EXPECT_EQ(launched.registry().controlIDs(), (std::vector<std::string>{"snap"}));

    settings.showGeneral();
    EXPECT_FALSE(settings.header().hasSwitch);
    ASSERT_EQ(settings.cards().size(), 1u) << "only what a usable tool needs";
    EXPECT_EQ(settings.cards()[0].permission, Permission::accessibility);
    EXPECT_EQ(settings.pageSource(), nullptr);
}

TEST(SettingsWindowModel, TheDrawnHeaderAndSidebarShowOnlyWhatAppliesAndActOnTheTool) {
    LaunchedApp launched;
    launched.add("snap").hasControl = true;
    launched.add("later").available = false;
    launched.launch();
    SettingsWindowModel& settings = launched.settings();
    using ViewKind = ViewNode::Kind;

    settings.showTool("later");
    ViewNode header = settings.headerView(500);
    const ViewNode* toggle = findNode(header, ViewKind::toggleSwitch, "");
    ASSERT_NE(toggle, nullptr);
    EXPECT_FALSE(toggle->isEnabled);
    EXPECT_NE(findNode(header, ViewKind::secondaryLabel, ToolStatus::kUnavailable), nullptr);
    EXPECT_EQ(findNode(header, ViewKind::checkbox, SettingsWindowModel::kShowInMenuLabel), nullptr);

    settings.showTool("snap");
    header = settings.headerView(500);
    findNode(header, ViewKind::toggleSwitch, "")->toggled(true);
    findNode(header, ViewKind::checkbox, SettingsWindowModel::kShowInMenuLabel)->toggled(true);
    EXPECT_TRUE(launched.registry().enabledIDs().contains("snap"));
    EXPECT_EQ(launched.registry().controlIDs(), (std::vector<std::string>{"snap"}));
    EXPECT_TRUE(findNode(settings.headerView(500), ViewKind::toggleSwitch, "")->isOn);

    settings.showGeneral();
    EXPECT_EQ(findNode(settings.headerView(500), ViewKind::toggleSwitch, ""), nullptr);

    std::vector<std::vector<std::string>> sidebar;
    for (const auto& row : settings.sidebar()) {
        sidebar.push_back(shownTexts(row.view()));
    }
    ASSERT_GE(sidebar.size(), 3u);
    const auto entry = [&](const std::string& name) {
        for (const auto& texts : sidebar) {
            if (std::find(texts.begin(), texts.end(), name) != texts.end()) {
                return texts;
            }
        }
        return std::vector<std::string>{};
    };
    const std::string dot = std::string("[") + SettingsWindowModel::kOnIndicator + "]";
    EXPECT_EQ(entry("snap").back(), dot) << "a tool that is on has its dot";
    EXPECT_NE(entry("later").back(), dot);
    const auto category = settings.sidebar()[1].view();
    EXPECT_EQ(category.kind, ViewKind::heading);
    EXPECT_EQ(category.color, ColorRole::secondaryLabel);
}

}  // namespace
}  // namespace quorvane
