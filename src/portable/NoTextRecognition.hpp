#pragma once

#include "platform/TextRecognition.hpp"

namespace quorvane {

// No text recognition outside macOS: every request answers at once with the reason.
class NoTextRecognition : public TextRecognition {
public:
    Subscription recognize(const Thumbnail& /*image*/, bool /*accurate*/,
                           bool /*languageCorrection*/, Handler handler) override {
        handler({}, "Text recognition needs macOS");
        return {};
    }
};

}  // namespace quorvane
