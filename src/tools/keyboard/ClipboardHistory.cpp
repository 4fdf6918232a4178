#include "tools/keyboard/ClipboardHistory.hpp"

#include <algorithm>

#include "tools/keyboard/ClipboardRules.hpp"

namespace quorvane {

namespace {

void collectImage(const ClipItem& item, std::vector<Uuid>& files) {
    if (item.kind == ClipItem::Kind::image) {
        files.push_back(item.id);
    }
}

}  // namespace

std::vector<Uuid> ClipboardHistory::replace(Items items) {
    items_ = std::move(items);
    return trim();
}

std::vector<Uuid> ClipboardHistory::insert(ClipItem item) {
    std::vector<Uuid> unused;
    const auto same = std::find_if(items_.begin(), items_.end(), [&](const ClipItem& existing) {
        return existing.sameContent(item);
    });
    if (same == items_.end()) {
        items_.push_front(std::move(item));
        auto dropped = trim();
        unused.insert(unused.end(), dropped.begin(), dropped.end());
        return unused;
    }
    ClipItem kept = std::move(*same);
    items_.erase(same);
    if (item.kind == ClipItem::Kind::image) {
        unused.push_back(item.id);
    }
    kept.date = item.date;
    if (item.app) {
        kept.app = std::move(item.app);
    }
    items_.push_front(std::move(kept));
    auto dropped = trim();
    unused.insert(unused.end(), dropped.begin(), dropped.end());
    return unused;
}

std::vector<Uuid> ClipboardHistory::setMaxItems(std::size_t maxItems) {
    maxItems_ = maxItems;
    return trim();
}

std::vector<Uuid> ClipboardHistory::trim() {
    std::vector<Uuid> dropped;
    while (items_.size() > maxItems_) {
        collectImage(items_.back(), dropped);
        items_.pop_back();
    }
    return dropped;
}

std::vector<Uuid> ClipboardHistory::remove(const Uuid& id) {
    std::vector<Uuid> dropped;
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const ClipItem& item) { return item.id == id; });
    if (found != items_.end()) {
        collectImage(*found, dropped);
        items_.erase(found);
    }
    return dropped;
}

bool ClipboardHistory::removeRecentText(double now) {
    if (items_.empty() || items_.front().kind != ClipItem::Kind::text ||
        !(now - items_.front().date < ClipboardRules::kClearedWindow)) {
        return false;
    }
    items_.pop_front();
    return true;
}

std::vector<Uuid> ClipboardHistory::clear() {
    std::vector<Uuid> dropped;
    for (const ClipItem& item : items_) {
        collectImage(item, dropped);
    }
    items_.clear();
    return dropped;
}

const ClipItem* ClipboardHistory::find(const Uuid& id) const {
    for (const ClipItem& item : items_) {
        if (item.id == id) {
            return &item;
        }
    }
    return nullptr;
}

}  // namespace quorvane
