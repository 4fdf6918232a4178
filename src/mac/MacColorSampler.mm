#include "mac/MacPorts.hpp"

#include <memory>

#include "mac/CancellableAction.hpp"
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
        using Sample = CancellableAction<std::optional<Color>>;
        auto shared = std::make_shared<Sample>(std::move(handler));
        NSColorSampler* sampler = [[NSColorSampler alloc] init];
        [sampler showSamplerWithSelectionHandler:^(NSColor* selected) {
          // nil when the user cancelled (a message to nil answers nil) or the colour has no sRGB
          // form.
          NSColor* srgb = [selected colorUsingColorSpace:[NSColorSpace sRGBColorSpace]];
          Sample::run(shared, srgb != nil
                                  ? std::optional(Color{static_cast<double>(srgb.redComponent),
                                                        static_cast<double>(srgb.greenComponent),
                                                        static_cast<double>(srgb.blueComponent)})
                                  : std::nullopt);
        }];
        return Subscription([shared] { shared->cancelled = true; });
    }
};

}  // namespace

std::unique_ptr<ColorSampler> makeMacColorSampler() { return std::make_unique<MacColorSampler>(); }

}  // namespace quorvane
