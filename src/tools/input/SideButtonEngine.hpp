#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/EventType.hpp"

namespace quorvane {

// Mouse buttons 4 and 5 as back and forward, free of any platform. A press outside the excepted
// apps is swallowed and becomes a navigation; its release is swallowed with it, whatever comes
// to the front in between, so no app ever sees half a click.
class SideButtonEngine {
public:
    enum class Navigation { back, forward };
    // Button numbers as events carry them, counted from 0: the fourth and the fifth button.
    static constexpr std::int64_t kBackButton = 3;
    static constexpr std::int64_t kForwardButton = 4;

    struct Outcome {
        bool pass = true;
        std::optional<Navigation> navigate;
    };

    Outcome handle(EventType type, std::int64_t button, bool frontAppExcepted);
    void reset() { held_ = {}; }

private:
    std::array<bool, 2> held_{};
};

}  // namespace quorvane
