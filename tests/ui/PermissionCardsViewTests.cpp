#include "ui/PermissionCardsView.hpp"

#include <gtest/gtest.h>

#include <utility>

#include "support/ViewNodeSearch.hpp"

namespace quorvane {
namespace {

using Kind = ViewNode::Kind;

class CardList : public PermissionCardSource {
public:
    std::vector<PermissionCard> cards() const override { return shown; }
    const std::string& cardNotice() const override { return notice; }
    void performCardAction(Permission permission, PermissionCard::Action action) override {
        performed.emplace_back(permission, action);
    }

    std::vector<PermissionCard> shown;
    std::string notice;
    std::vector<std::pair<Permission, PermissionCard::Action>> performed;
};

PermissionCard card(Permission permission, PermissionCard::State state) {
    return {permission,
            "Card " + std::string(rawValue(permission)),
            "Why",
            state,
            "state.icon",
            ColorRole::orange,
            {"1. **Open**", "2. Allow"},
            {{"Open", PermissionCard::Action::openSystemSettings},
             {"Restart", PermissionCard::Action::restartQuorvane}}};
}

TEST(PermissionCardsView, AGrantedCardSaysSoAloneAndAMissingOnesButtonsActForItsPermission) {
    CardList source;
    source.shown = {card(Permission::accessibility, PermissionCard::State::granted),
                    card(Permission::screenRecording, PermissionCard::State::missing)};
    const ViewNode view = permissionCardsView(source, 400);
    ASSERT_EQ(view.children.size(), 2u) << "no notice line while nothing failed";
    EXPECT_EQ(shownTexts(view.children[0]),
              (std::vector<std::string>{"[lock.shield.fill]", "Card accessibility", "[state.icon]",
                                        "Why"}));
    EXPECT_EQ(view.children[0].kind, Kind::card);
    EXPECT_EQ(view.children[0].width, 400);

    const ViewNode& missing = view.children[1];
    const ViewNode* step = findNode(missing, Kind::styledLabel, "1. **Open**");
    ASSERT_NE(step, nullptr);
    EXPECT_LT(step->width, 400) << "steps wrap inside the card";
    ASSERT_NE(findNode(missing, Kind::secondaryLabel, PermissionCard::kHelp), nullptr);
    findNode(missing, Kind::button, "Restart")->action();
    findNode(missing, Kind::button, "Open")->action();
    EXPECT_EQ(source.performed,
              (std::vector<std::pair<Permission, PermissionCard::Action>>{
                  {Permission::screenRecording, PermissionCard::Action::restartQuorvane},
                  {Permission::screenRecording, PermissionCard::Action::openSystemSettings}}));

    source.notice = "System Settings did not open.";
    const ViewNode failed = permissionCardsView(source, 400);
    ASSERT_EQ(failed.children.size(), 3u);
    EXPECT_EQ(failed.children.back().text, source.notice);
    EXPECT_EQ(failed.children.back().color, ColorRole::red);
}

}  // namespace
}  // namespace quorvane
