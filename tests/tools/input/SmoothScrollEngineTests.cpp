#include "tools/input/SmoothScrollEngine.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "platform/EventField.hpp"
#include "tools/input/ScrollReversal.hpp"

namespace quorvane {
namespace {

using TimerChange = SmoothScrollEngine::TimerChange;

SmoothScrollEngine::Wheel notch(double vertical, double horizontal = 0) {
    SmoothScrollEngine::Wheel wheel;
    wheel.vertical = vertical;
    wheel.horizontal = horizontal;
    return wheel;
}

// Runs frames every 1/120 s until the glide ends; answers the scrolls posted, in order.
std::vector<SmoothScrollEngine::Scroll> glideOut(SmoothScrollEngine& engine, Seconds& now) {
    std::vector<SmoothScrollEngine::Scroll> scrolls;
    for (int i = 0; i < 10'000 && engine.isGliding(); ++i) {
        now += SmoothScrollEngine::kFrameInterval;
        const auto outcome = engine.frame(now);
        EXPECT_NE(outcome.timer, TimerChange::start);
        if (outcome.scroll) {
            scrolls.push_back(*outcome.scroll);
        }
    }
    EXPECT_FALSE(engine.isGliding()) << "the glide never ended";
    return scrolls;
}

std::int64_t verticalTotal(const std::vector<SmoothScrollEngine::Scroll>& scrolls) {
    std::int64_t total = 0;
    for (const auto& scroll : scrolls) {
        total += scroll.vertical;
    }
    return total;
}

TEST(SmoothScrollEngineTest, OneNotchGlidesExactlyFortyPixelsOverManyFramesThenStopsTheTimer) {
    SmoothScrollEngine engine;
    Seconds now(5);
    const auto first = engine.wheel(notch(1), now);
    EXPECT_FALSE(first.pass);
    EXPECT_EQ(first.timer, TimerChange::start);
    // The first frame runs at once, with no time gone by: it counts as 1/240 s.
    const double fraction = 1 - std::exp(-(1.0 / 240) / 0.09);
    EXPECT_NEAR(engine.remaining().vertical, 40 * (1 - fraction), 1e-9);
    ASSERT_TRUE(first.scroll);
    EXPECT_EQ(*first.scroll, (SmoothScrollEngine::Scroll{1, 0}))
        << "1.81 px: 1 now, the rest later";

    auto scrolls = glideOut(engine, now);
    scrolls.insert(scrolls.begin(), *first.scroll);
    EXPECT_EQ(verticalTotal(scrolls), 40);
    EXPECT_GT(scrolls.size(), 10u);
    // From the first full frame on, each step is at most the one before (plus the carry).
    for (std::size_t i = 2; i < scrolls.size(); ++i) {
        EXPECT_GT(scrolls[i].vertical, 0);
        EXPECT_LE(scrolls[i].vertical, scrolls[i - 1].vertical + 1) << "the glide slows down";
        EXPECT_EQ(scrolls[i].horizontal, 0);
    }
    EXPECT_EQ(engine.carry().vertical, 0);
    EXPECT_EQ(engine.frame(now).timer, TimerChange::stop) << "a late tick only stops the timer";
}

TEST(SmoothScrollEngineTest, SpeedGlideAndAxesShapeTheGlide) {
    const auto framesFor = [](Glide glide) {
        SmoothScrollEngine engine;
        engine.setGlide(glide);
        Seconds now(0);
        engine.wheel(notch(1), now);
        return glideOut(engine, now).size();
    };
    EXPECT_LT(framesFor(Glide::shortGlide), framesFor(Glide::medium));
    EXPECT_LT(framesFor(Glide::medium), framesFor(Glide::longGlide));

    SmoothScrollEngine engine;
    engine.setSpeed(1.5);
    Seconds now(0);
    const auto first = engine.wheel(notch(-2, 0.5), now);
    auto scrolls = glideOut(engine, now);
    scrolls.push_back(*first.scroll);
    std::int64_t horizontal = 0;
    for (const auto& scroll : scrolls) {
        horizontal += scroll.horizontal;
    }
    EXPECT_EQ(verticalTotal(scrolls), -120) << "2 notches up at 1.5×";
    EXPECT_EQ(horizontal, 30) << "axis 2 goes to the second wheel";
}

TEST(SmoothScrollEngineTest, ReversingMidGlideDropsTheRestAndGlidesTheNewWay) {
    SmoothScrollEngine engine;
    Seconds now(0);
    engine.wheel(notch(1), now);
    for (int i = 0; i < 3; ++i) {
        now += SmoothScrollEngine::kFrameInterval;
        engine.frame(now);
    }
    EXPECT_GT(engine.remaining().vertical, 20);
    engine.wheel(notch(1), now);
    EXPECT_GT(engine.remaining().vertical, 60) << "the same way adds up";
    const double carried = engine.carry().vertical;

    const auto turned = engine.wheel(notch(-1), now);
    EXPECT_FALSE(turned.pass);
    EXPECT_EQ(turned.timer, TimerChange::none) << "the timer already runs";
    EXPECT_EQ(engine.remaining().vertical, -40) << "the rest of the old glide is gone";
    const auto scrolls = glideOut(engine, now);
    for (const auto& scroll : scrolls) {
        EXPECT_LE(scroll.vertical, 0);
    }
    EXPECT_EQ(verticalTotal(scrolls), std::lround(carried - 40));
}

TEST(SmoothScrollEngineTest, FramesUseTheRealElapsedTimeButNeverLessThanHalfAFrame) {
    const double tau = 0.09;
    SmoothScrollEngine engine;
    Seconds now(0);
    engine.wheel(notch(10), now);
    double before = engine.remaining().vertical;
    now += Seconds(0.001);
    engine.frame(now);
    EXPECT_NEAR(engine.remaining().vertical, before * std::exp(-(1.0 / 240) / tau), 1e-9);

    // A stalled main thread: the glide catches up instead of stalling with it.
    before = engine.remaining().vertical;
    now += Seconds(0.2);
    engine.frame(now);
    EXPECT_NEAR(engine.remaining().vertical, before * std::exp(-0.2 / tau), 1e-9);

    before = engine.remaining().vertical;
    now += Seconds(0.05);
    engine.frame(now);
    EXPECT_NEAR(engine.remaining().vertical, before * std::exp(-0.05 / tau), 1e-9);
}

TEST(SmoothScrollEngineTest, LeavesAloneWhatIsNotAPlainWheelStep) {
    SmoothScrollEngine engine;
    std::vector<SmoothScrollEngine::Wheel> passed;
    auto wheel = notch(1);
    wheel.continuous = true;  // a trackpad or a Magic Mouse
    passed.push_back(wheel);
    for (const std::uint64_t modifier : {modifierFlag::command, modifierFlag::shift,
                                         modifierFlag::option, modifierFlag::control}) {
        wheel = notch(1);
        wheel.flags = modifier;
        passed.push_back(wheel);
    }
    wheel = notch(1);
    wheel.userData = ownEventTag::scroll;
    passed.push_back(wheel);
    wheel = notch(1);
    wheel.frontAppWantsSteps = true;
    passed.push_back(wheel);
    passed.push_back(notch(0, 0));
    passed.push_back(notch(std::numeric_limits<double>::quiet_NaN()));
    passed.push_back(notch(1, std::numeric_limits<double>::infinity()));
    for (const auto& event : passed) {
        const auto outcome = engine.wheel(event, Seconds(1));
        EXPECT_TRUE(outcome.pass);
        EXPECT_FALSE(outcome.scroll);
        EXPECT_EQ(outcome.timer, TimerChange::none);
    }
    EXPECT_FALSE(engine.isGliding());

    wheel = notch(1);
    wheel.flags = 0x10000 | 0x800000;  // caps lock and fn are no modifiers here
    wheel.userData = ScrollReversal::kReversedTag;
    EXPECT_FALSE(engine.wheel(wheel, Seconds(1)).pass);
    EXPECT_TRUE(engine.isGliding());
    engine.reset();
    EXPECT_FALSE(engine.isGliding());
    EXPECT_EQ(engine.remaining().vertical, 0);
}

TEST(SmoothScrollEngineTest, ATinyStepEndsInItsFirstFrameWithoutATimer) {
    SmoothScrollEngine engine;
    engine.setSpeed(0.25);
    // A sliver of a high-resolution wheel's notch: 0.8 px at 0.25×, released whole at once and
    // rounded.
    const auto outcome = engine.wheel(notch(0.08), Seconds(0));
    EXPECT_FALSE(outcome.pass);
    EXPECT_EQ(outcome.timer, TimerChange::none);
    ASSERT_TRUE(outcome.scroll);
    EXPECT_EQ(outcome.scroll->vertical, 1);
    EXPECT_FALSE(engine.isGliding());
}

TEST(SmoothScrollEngineTest, AnyMixOfNotchesSpeedsAndTimingsPostsExactlyTheDistanceAskedFor) {
    std::mt19937 random(20261123);
    std::uniform_int_distribution<int> notches(-3, 3);
    std::uniform_real_distribution<double> speeds(0.25, 4.0);
    std::uniform_real_distribution<double> gaps(0.0005, 0.06);
    std::uniform_real_distribution<double> unit(0, 1);
    const Glide glides[] = {Glide::shortGlide, Glide::medium, Glide::longGlide};

    SmoothScrollEngine engine;
    Seconds now(0);
    int glidesChecked = 0;
    // What the current glide must release in total: every amount added, less any pending
    // amount a change of direction dropped.
    double addedH = 0, addedV = 0;
    std::int64_t postedH = 0, postedV = 0;
    bool open = false;
    const auto record = [&](const SmoothScrollEngine::Outcome& outcome) {
        if (outcome.scroll) {
            postedV += outcome.scroll->vertical;
            postedH += outcome.scroll->horizontal;
        }
        if (open && !engine.isGliding()) {
            ASSERT_EQ(postedV, std::llround(addedV)) << "glide " << glidesChecked;
            ASSERT_EQ(postedH, std::llround(addedH)) << "glide " << glidesChecked;
            ++glidesChecked;
            open = false;
            addedH = addedV = 0;
            postedH = postedV = 0;
        }
    };
    const auto add = [](double& added, double pending, double amount) {
        added += pending * amount < 0 ? amount - pending : amount;
    };

    for (int step = 0; step < 40'000; ++step) {
        now += Seconds(gaps(random));
        if (!engine.isGliding() || unit(random) < 0.15) {
            if (unit(random) < 0.02) {
                engine.setGlide(glides[random() % 3]);
            }
            engine.setSpeed(speeds(random));
            // Whole notches mostly, fractions as high-resolution wheels send them sometimes.
            const double scale = unit(random) < 0.3 ? 0.1 : 1.0;
            auto wheel = notch(notches(random) * scale, notches(random) * scale);
            if (wheel.vertical == 0 && wheel.horizontal == 0) {
                wheel.vertical = 1;
            }
            const double speed = engine.speed() * SmoothScrollEngine::kPixelsPerNotch;
            add(addedH, engine.remaining().horizontal, wheel.horizontal * speed);
            add(addedV, engine.remaining().vertical, wheel.vertical * speed);
            open = true;
            const auto outcome = engine.wheel(wheel, now);
            ASSERT_FALSE(outcome.pass);
            record(outcome);
        } else {
            record(engine.frame(now));
        }
        if (::testing::Test::HasFatalFailure()) {
            return;
        }
    }
    for (int i = 0; i < 10'000 && engine.isGliding(); ++i) {
        now += SmoothScrollEngine::kFrameInterval;
        record(engine.frame(now));
    }
    EXPECT_FALSE(engine.isGliding());
    EXPECT_GT(glidesChecked, 500);
}

}  // namespace
}  // namespace quorvane
