#include "platform/AreaChoice.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace quorvane {
namespace {

// What the windows and the handler saw, in order.
struct Seen {
    std::vector<std::string> events;
    std::vector<std::optional<Rect>> answers;

    AreaChoice choice(double mainDisplayHeight = 900) {
        return AreaChoice(
            [this](std::optional<Rect> area) {
                events.push_back("answer");
                answers.push_back(area);
            },
            [this] { events.push_back("close"); }, mainDisplayHeight);
    }
};

TEST(AreaChoice, AnswersOnceInAccessibilityCoordinatesAfterClosingTheWindows) {
    Seen seen;
    AreaChoice choice = seen.choice(900);
    // 100 points up from the bottom of a 900-point main display, 50 high: 750 from its top.
    choice.finish(Rect(10, 100, 200, 50));
    choice.finish(Rect(0, 0, 1, 1));
    choice.cancel();
    EXPECT_EQ(seen.events, (std::vector<std::string>{"close", "answer"}));
    EXPECT_EQ(seen.answers, (std::vector<std::optional<Rect>>{Rect(10, 750, 200, 50)}));

    // A display above the main one has negative accessibility y; a rectangle given the other
    // way round is the same area.
    Seen above;
    above.choice(900).finish(Rect(210, 1000, -200, 100));
    EXPECT_EQ(above.answers, (std::vector<std::optional<Rect>>{Rect(10, -200, 200, 100)}));
}

TEST(AreaChoice, CancellingByTheUserAnswersNothingAndEndingTheSubscriptionNotAtAll) {
    Seen user;
    AreaChoice byUser = user.choice();
    byUser.finish(std::nullopt);
    EXPECT_EQ(user.events, (std::vector<std::string>{"close", "answer"}));
    EXPECT_EQ(user.answers, (std::vector<std::optional<Rect>>{std::nullopt}));

    Seen ended;
    AreaChoice byOwner = ended.choice();
    byOwner.cancel();
    byOwner.finish(Rect(1, 2, 3, 4));
    EXPECT_EQ(ended.events, (std::vector<std::string>{"close"}));
}

}  // namespace
}  // namespace quorvane
