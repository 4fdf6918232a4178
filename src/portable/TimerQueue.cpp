#include "portable/TimerQueue.hpp"

#include <algorithm>

namespace quorvane {

TimerQueue::TimerQueue() : entries_(std::make_shared<Entries>()) {}

Timer TimerQueue::schedule(Seconds deadline, Seconds interval, std::function<void()> action) {
    const std::uint64_t id = nextID_++;
    entries_->emplace(
        Key{deadline, nextSequence_++},
        Entry{interval, id, std::make_shared<std::function<void()>>(std::move(action))});
    // A repeating timer changes its key each time it runs, so cancellation finds it by id.
    return Timer([weak = std::weak_ptr<Entries>(entries_), id] {
        if (auto entries = weak.lock()) {
            std::erase_if(*entries, [id](const auto& item) { return item.second.id == id; });
        }
    });
}

std::optional<Seconds> TimerQueue::nextDeadline() const {
    if (entries_->empty()) {
        return std::nullopt;
    }
    return entries_->begin()->first.first;
}

bool TimerQueue::runNext(Seconds now) {
    if (entries_->empty() || entries_->begin()->first.first > now) {
        return false;
    }
    auto node = entries_->extract(entries_->begin());
    // Keep the action alive while it runs: it may cancel its own timer.
    const auto action = node.mapped().action;
    if (node.mapped().interval > Seconds::zero()) {
        node.key() = Key{node.key().first + node.mapped().interval, nextSequence_++};
        entries_->insert(std::move(node));
    }
    (*action)();
    return true;
}

}  // namespace quorvane
