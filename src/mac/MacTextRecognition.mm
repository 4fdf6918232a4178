#include "mac/MacPorts.hpp"

#include <memory>
#include <vector>

#include "mac/CancellableAction.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

// Written from Apple's Vision reference, not the fact sheet: unconfirmed, check on a Mac
// first. performRequests:error: is synchronous, so it runs on a global queue and the answer
// comes back on the main one. boundingBox is normalised with its origin at the bottom left.

namespace quorvane {

namespace {

void readText(CGImageRef image, bool accurate, bool languageCorrection,
              std::vector<TextRecognition::Observation>& found, std::string& failure) {
    @autoreleasepool {
        VNRecognizeTextRequest* request = [[VNRecognizeTextRequest alloc] init];
        request.recognitionLevel =
            accurate ? VNRequestTextRecognitionLevelAccurate : VNRequestTextRecognitionLevelFast;
        request.usesLanguageCorrection = languageCorrection;
        VNImageRequestHandler* reader = [[VNImageRequestHandler alloc] initWithCGImage:image
                                                                               options:@{}];
        NSError* error = nil;
        if (![reader performRequests:@[ request ] error:&error]) {
            failure = errorText(error, "no reason given");
            return;
        }
        for (VNRecognizedTextObservation* observation in request.results) {
            VNRecognizedText* best = [observation topCandidates:1].firstObject;
            if (best == nil) {
                continue;
            }
            const CGRect box = observation.boundingBox;
            found.push_back({utf8String(best.string),
                             Rect(box.origin.x, box.origin.y, box.size.width, box.size.height),
                             static_cast<double>(best.confidence)});
        }
    }
}

// Text recognition through Vision, performed on a background queue.
class MacTextRecognition final : public TextRecognition {
public:
    Subscription recognize(const Thumbnail& image, bool accurate, bool languageCorrection,
                           Handler handler) override {
        using Callback = CancellableAction<const std::vector<Observation>&, const std::string&>;
        auto shared = std::make_shared<Callback>(std::move(handler));
        // The shared pointer keeps the picture alive on the other queue.
        const std::shared_ptr<const void> picture = image.image;
        // 0 is the default-priority global queue.
        dispatch_async(dispatch_get_global_queue(0, 0), ^{
          std::vector<Observation> found;
          std::string failure = "there is no picture";
          if (picture) {
              failure.clear();
              readText(static_cast<CGImageRef>(const_cast<void*>(picture.get())), accurate,
                       languageCorrection, found, failure);
          }
          dispatch_async(dispatch_get_main_queue(), ^{
            Callback::run(shared, found, failure);
          });
        });
        return Subscription([shared] { shared->cancelled = true; });
    }
};

}  // namespace

std::unique_ptr<TextRecognition> makeMacTextRecognition() {
    return std::make_unique<MacTextRecognition>();
}

}  // namespace quorvane
