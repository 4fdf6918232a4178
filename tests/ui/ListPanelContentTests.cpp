#include "ui/ListPanelContent.hpp"

#include <gtest/gtest.h>

#include <memory>

#include "support/ViewNodeSearch.hpp"

namespace quorvane {
namespace {

using Kind = ViewNode::Kind;

TEST(ListPanelRow, ARowShowsItsThumbnailElseItsSymbolAndItsAppOnlyWhenKnown) {
    ListPanelRow row{"1", "Quarterly report", "doc.text", std::nullopt, std::nullopt, true};
    ViewNode drawn = row.view();
    EXPECT_EQ(shownTexts(drawn),
              (std::vector<std::string>{"1", "Quarterly report", "[doc.text]", "Quarterly report"}))
        << "the symbol is described by the title for VoiceOver";
    EXPECT_EQ(drawn.highlight, ListPanelRow::kSelectedOpacity);
    EXPECT_TRUE(findNode(drawn, Kind::label, "Quarterly report")->truncates);
    EXPECT_EQ(findNode(drawn, Kind::appBadge, ""), nullptr);

    row.isSelected = false;
    row.thumbnail = Thumbnail{40, 30, std::make_shared<int>(0)};
    row.app = "com.example.mail";
    drawn = row.view();
    EXPECT_EQ(drawn.highlight, 0.0) << "an unselected row is tinted at no opacity";
    const auto nodes = allNodes(drawn);
    const auto picture = std::find_if(nodes.begin(), nodes.end(), [](const ViewNode* node) {
        return node->kind == Kind::picture;
    });
    ASSERT_NE(picture, nodes.end());
    EXPECT_TRUE((*picture)->image.has_value()) << "a thumbnail takes the symbol's place";
    EXPECT_TRUE((*picture)->symbol.empty());
    EXPECT_NE(findNode(drawn, Kind::appBadge, "com.example.mail"), nullptr);

    row.thumbnail = Thumbnail{};
    row.symbol.clear();
    EXPECT_EQ(row.view().children.size(), 3u) << "number, title and app: nothing to picture";
}

TEST(ListPanelContent, OnlyASelectionThatIsARowIsScrolledTo) {
    ListPanelContent content;
    content.rowCount = 3;
    content.selection = 2;
    EXPECT_EQ(content.rowToReveal(), 2u);
    content.selection = 3;
    EXPECT_EQ(content.rowToReveal(), std::nullopt);
    content.rowCount = 0;
    content.selection = 0;
    EXPECT_EQ(content.rowToReveal(), std::nullopt);
}

}  // namespace
}  // namespace quorvane
