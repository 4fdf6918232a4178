#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Rect.hpp"
#include "base/Subscription.hpp"
#include "platform/Thumbnail.hpp"

namespace quorvane {

// Finds and reads the text in an image (Vision's text recognition request).
class TextRecognition {
public:
    // One VNRecognizedTextObservation's best candidate.
    struct Observation {
        std::string text;
        // Normalised to the image (0 to 1), origin at the bottom left as Vision gives it.
        Rect box;
        double confidence = 0;
        friend bool operator==(const Observation&, const Observation&) = default;
    };
    using Handler =
        std::function<void(const std::vector<Observation>& found, const std::string& error)>;

    virtual ~TextRecognition() = default;

    // Reads the image off the main thread and answers on it; `accurate` picks the slower,
    // better recognition level, `languageCorrection` the request's language correction.
    [[nodiscard]] virtual Subscription recognize(const Thumbnail& image, bool accurate,
                                                 bool languageCorrection, Handler handler) = 0;
};

}  // namespace quorvane
