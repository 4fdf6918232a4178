#include "base/CallWithoutUnwinding.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace quorvane {
namespace {

TEST(CallWithoutUnwinding, PassesTheArgumentsAndStopsWhatTheHandlerThrows) {
    int received = 0;
    const std::function<void(int)> failing = [&](int value) {
        received = value;
        throw std::runtime_error("handler failed");
    };
    EXPECT_NO_THROW(callWithoutUnwinding(failing, 7));
    EXPECT_EQ(received, 7) << "what the handler did before it threw stands";
    // An empty std::function throws when called, and that is stopped as well.
    EXPECT_NO_THROW(callWithoutUnwinding(std::function<void()>()));
}

}  // namespace
}  // namespace quorvane
