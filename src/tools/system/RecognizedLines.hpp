#pragma once

#include <string>
#include <vector>

#include "platform/TextRecognition.hpp"

namespace quorvane {

// Puts the pieces text recognition found back into reading order: top to bottom, pieces side
// by side on one line joined left to right with a space, and a blank line where the gap
// between two lines is taller than the lines themselves (a new paragraph or column block).
class RecognizedLines {
public:
    // Pieces read with less confidence than this are guesses at noise (icons, borders).
    static constexpr double kMinimumConfidence = 0.3;

    static std::vector<std::string> lines(const std::vector<TextRecognition::Observation>& found);
    // The lines as one text; without line breaks, as one line with single spaces.
    static std::string text(const std::vector<TextRecognition::Observation>& found,
                            bool keepLineBreaks);
};

}  // namespace quorvane
