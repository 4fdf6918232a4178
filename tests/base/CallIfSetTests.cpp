#include "base/CallIfSet.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace quorvane {
namespace {

TEST(CallIfSetTest, RunsOnlyABindingThatIsSetAndSaysWhetherItRan) {
    std::function<void(int)> binding;
    EXPECT_FALSE(callIfSet(binding, 1)) << "an empty binding is skipped, and the caller told";
    int received = 0;
    binding = [&](int value) { received = value; };
    EXPECT_TRUE(callIfSet(binding, 7));
    EXPECT_EQ(received, 7);
}

}  // namespace
}  // namespace quorvane
