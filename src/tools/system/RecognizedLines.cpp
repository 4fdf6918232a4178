#include "tools/system/RecognizedLines.hpp"

#include <algorithm>

namespace quorvane {

namespace {

struct Line {
    double top = 0;  // boxes have their origin at the bottom, so the top is the larger y
    double bottom = 0;
    std::vector<const TextRecognition::Observation*> pieces;

    double height() const { return top - bottom; }
};

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) {
        return {};
    }
    const auto last = text.find_last_not_of(" \t\r\n");
    return text.substr(first, last - first + 1);
}

// Two boxes are on one line when they share at least half of the smaller one's height.
bool sameLine(const Line& line, const Rect& box) {
    const double overlap = std::min(line.top, box.maxY()) - std::max(line.bottom, box.minY());
    return overlap >= 0.5 * std::min(line.height(), box.height());
}

}  // namespace

std::vector<std::string> RecognizedLines::lines(
    const std::vector<TextRecognition::Observation>& found) {
    std::vector<const TextRecognition::Observation*> pieces;
    for (const auto& observation : found) {
        if (observation.confidence >= kMinimumConfidence && !trimmed(observation.text).empty()) {
            pieces.push_back(&observation);
        }
    }
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const auto* a, const auto* b) { return a->box.maxY() > b->box.maxY(); });
    std::vector<Line> grouped;
    for (const auto* piece : pieces) {
        const Rect box = piece->box.standardized();
        auto line = std::find_if(grouped.begin(), grouped.end(),
                                 [&](const Line& candidate) { return sameLine(candidate, box); });
        if (line == grouped.end()) {
            grouped.push_back({box.maxY(), box.minY(), {piece}});
            continue;
        }
        line->top = std::max(line->top, box.maxY());
        line->bottom = std::min(line->bottom, box.minY());
        line->pieces.push_back(piece);
    }
    std::vector<std::string> result;
    for (std::size_t i = 0; i < grouped.size(); ++i) {
        auto& line = grouped[i];
        if (i > 0) {
            const Line& above = grouped[i - 1];
            const double gap = above.bottom - line.top;
            if (gap > std::max(above.height(), line.height())) {
                result.emplace_back();
            }
        }
        std::stable_sort(line.pieces.begin(), line.pieces.end(), [](const auto* a, const auto* b) {
            return a->box.minX() < b->box.minX();
        });
        std::string text;
        for (const auto* piece : line.pieces) {
            if (!text.empty()) {
                text += ' ';
            }
            text += trimmed(piece->text);
        }
        result.push_back(std::move(text));
    }
    return result;
}

std::string RecognizedLines::text(const std::vector<TextRecognition::Observation>& found,
                                  bool keepLineBreaks) {
    std::string text;
    for (const auto& line : lines(found)) {
        if (!keepLineBreaks && line.empty()) {
            continue;
        }
        if (!text.empty()) {
            text += keepLineBreaks ? '\n' : ' ';
        }
        text += line;
    }
    return text;
}

}  // namespace quorvane
