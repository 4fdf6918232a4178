#include "mac/MacPorts.hpp"

#include <memory>

#include "mac/CancellableHandler.hpp"
#include "mac/MacFrameworks.h"

// Written from Apple's NSColorSampler reference, not the fact sheet: unconfirmed, check on a
// Mac first. The selection handler runs on the main thread and gets nil when the user
// cancels; the sampler keeps itself alive until then. The colour is converted to sRGB so the
// numbers mean what web and design tools expect.

namespace quorvane {

namespace {

// The system's colour sampler (NSColorSampler).
class MacColorSampler final : public ColorSampler {
public:
    Subscription sample(Handler handler) override {
        auto shared = std::make_shared<CancellableHandler<Handler>>(std::move(handler));
        NSColorSampler* sampler = [[NSColorSampler alloc] init];
        [sampler showSamplerWithSelectionHandler:^(NSColor* selected) {
          if (shared->cancelled) {
              return;
          }
          NSColor* srgb = [selected colorUsingColorSpace:[NSColorSpace sRGBColorSpace]];
          if (srgb == nil) {
              shared->handler(std::nullopt);
              return;
          }
          shared->handler(ColorSampler::Color{static_cast<double>(srgb.redComponent),
                                              static_cast<double>(srgb.greenComponent),
                                              static_cast<double>(srgb.blueComponent)});
        }];
        return Subscription([shared] { shared->cancelled = true; });
    }
};

}  // namespace

std::unique_ptr<ColorSampler> makeMacColorSampler() { return std::make_unique<MacColorSampler>(); }

}  // namespace quorvane
