#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/ColorSampler.hpp"

namespace quorvane {

// The sampler stays open until the test picks a colour (or cancels with nothing).
struct FakeColorSampler : ColorSampler {
    std::function<void(std::optional<Color>)> open;
    std::shared_ptr<bool> cancelled;
    int shown = 0;

    Subscription sample(Handler handler) override {
        ++shown;
        cancelled = std::make_shared<bool>(false);
        open = std::move(handler);
        return Subscription([flag = cancelled] { *flag = true; });
    }
    // The user clicks; false when nobody is waiting for the answer any more.
    bool pick(std::optional<Color> color) {
        if (!open || *cancelled) {
            return false;
        }
        auto handler = std::exchange(open, nullptr);
        handler(color);
        return true;
    }
};

}  // namespace quorvane
