#include "tools/windows/WindowSwitcherEngine.hpp"

namespace quorvane {

bool WindowSwitcherEngine::open(std::vector<Entry> entries) {
    if (entries.empty()) {
        return false;
    }
    entries_ = std::move(entries);
    selected_ = entries_.size() > 1 ? 1 : 0;
    open_ = true;
    return true;
}

void WindowSwitcherEngine::step(int by) {
    if (!open_ || entries_.empty()) {
        return;
    }
    const auto count = static_cast<long long>(entries_.size());
    const long long next = (static_cast<long long>(selected_) + by) % count;
    selected_ = static_cast<std::size_t>(next < 0 ? next + count : next);
}

std::optional<std::size_t> WindowSwitcherEngine::commit() {
    if (!open_) {
        return std::nullopt;
    }
    open_ = false;
    return selected_;
}

void WindowSwitcherEngine::cancel() {
    open_ = false;
    entries_.clear();
}

std::string WindowSwitcherEngine::caption() const {
    if (entries_.empty()) {
        return {};
    }
    const Entry& entry = entries_[selected_];
    const std::string name =
        entry.title.empty() ? entry.appName : entry.appName + " — " + entry.title;
    return name + "\n" + std::to_string(selected_ + 1) + " of " + std::to_string(entries_.size()) +
           " · let go to switch, Esc to stay";
}

}  // namespace quorvane
