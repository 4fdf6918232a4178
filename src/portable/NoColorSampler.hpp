#pragma once

#include "platform/ColorSampler.hpp"

namespace quorvane {

// No colour sampler outside macOS: every request answers at once, as if cancelled.
class NoColorSampler : public ColorSampler {
public:
    Subscription sample(Handler handler) override {
        handler(std::nullopt);
        return {};
    }
};

}  // namespace quorvane
