#include "tools/keyboard/PlainPasteEngine.hpp"

namespace quorvane {

std::optional<std::string> PlainPasteEngine::textToPaste(const std::optional<std::string>& string) {
    if (!string || string->empty()) {
        return std::nullopt;
    }
    return string;
}

void PlainPasteEngine::wrote(std::int64_t changeCount,
                             std::optional<std::vector<PasteboardItem>> saved) {
    if (saved) {
        saved_ = std::move(saved);
    }
    written_ = changeCount;
}

std::optional<std::vector<PasteboardItem>> PlainPasteEngine::restore(std::int64_t changeCount) {
    auto saved = std::move(saved_);
    saved_.reset();
    if (!saved || changeCount != written_) {
        return std::nullopt;
    }
    return saved;
}

}  // namespace quorvane
