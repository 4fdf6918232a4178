#pragma once

#include "platform/TextRecognition.hpp"

namespace quorvane {

// Text recognition through Vision, performed on a background queue.
class MacTextRecognition final : public TextRecognition {
public:
    Subscription recognize(const Thumbnail& image, bool accurate, bool languageCorrection,
                           Handler handler) override;
};

}  // namespace quorvane
