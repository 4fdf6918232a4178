#include "tools/keyboard/ClipboardHistory.hpp"

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
    if (const auto same = items_.findSame(item)) {
        if (item.kind == ClipItem::Kind::image) {
            unused.push_back(item.id);
        }
        items_.bringToFront(*same, item.date, std::move(item.app));
    } else {
        items_.push_front(std::move(item));
    }
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

std::optional<std::size_t> ClipboardHistory::indexOf(const Uuid& id) const {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (items_[i].id == id) {
            return i;
        }
    }
    return std::nullopt;
}

std::vector<Uuid> ClipboardHistory::remove(const Uuid& id) {
    std::vector<Uuid> dropped;
    if (const auto index = indexOf(id)) {
        collectImage(items_.take(*index), dropped);
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
    const auto index = indexOf(id);
    return index ? &items_[*index] : nullptr;
}

}  // namespace quorvane
