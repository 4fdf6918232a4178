#include "ui/StyledText.hpp"

namespace quorvane {

std::vector<StyledText::Run> StyledText::parse(std::string_view text) {
    std::vector<Run> runs;
    const auto append = [&runs](std::string_view part, bool bold) {
        if (part.empty()) {
            return;
        }
        if (!runs.empty() && runs.back().bold == bold) {
            runs.back().text += part;
        } else {
            runs.push_back({std::string(part), bold});
        }
    };
    while (!text.empty()) {
        const auto open = text.find("**");
        const auto close = open == std::string_view::npos ? open : text.find("**", open + 2);
        if (close == std::string_view::npos) {
            append(text, false);
            break;
        }
        append(text.substr(0, open), false);
        append(text.substr(open + 2, close - open - 2), true);
        text.remove_prefix(close + 2);
    }
    return runs;
}

}  // namespace quorvane
