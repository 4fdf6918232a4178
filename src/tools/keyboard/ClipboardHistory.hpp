#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "tools/keyboard/ClipItems.hpp"

namespace quorvane {

// The remembered copies, newest first, and every rule that changes them. Each change answers
// the image files that are no longer needed; the tool deletes them.
class ClipboardHistory {
public:
    using Items = ClipItems;

    explicit ClipboardHistory(std::size_t maxItems = 50) : maxItems_(maxItems) {}

    const Items& items() const { return items_; }
    std::size_t maxItems() const { return maxItems_; }

    // Replaces everything, as after loading; the list is trimmed to the limit.
    std::vector<Uuid> replace(Items items);
    // A new copy goes to the front; one with the same content as an earlier copy brings that
    // one to the front instead (its id and file kept, the date and app refreshed), and the new
    // copy's own image file is no longer needed.
    std::vector<Uuid> insert(ClipItem item);
    std::vector<Uuid> setMaxItems(std::size_t maxItems);
    std::vector<Uuid> remove(const Uuid& id);
    // A password manager emptied the clipboard: the newest copy goes if it is a text seen
    // less than two minutes ago. True when it went.
    bool removeRecentText(double now);
    std::vector<Uuid> clear();

    const ClipItem* find(const Uuid& id) const;

private:
    std::vector<Uuid> trim();
    std::optional<std::size_t> indexOf(const Uuid& id) const;

    std::size_t maxItems_;
    Items items_;
};

}  // namespace quorvane
