#pragma once

#include "platform/ColorSampler.hpp"

namespace quorvane {

// The system's colour sampler (NSColorSampler).
class MacColorSampler final : public ColorSampler {
public:
    Subscription sample(Handler handler) override;
};

}  // namespace quorvane
