#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "tools/keyboard/ClipItem.hpp"
#include "tools/keyboard/ClipSearchKey.hpp"

namespace quorvane {

// Copies, newest first, held so that the history's frequent changes stay cheap with thousands
// of them: each copy lives in a node that never moves, so bringing one to the front shifts
// pointers only; copies are indexed by content, so a repeated copy is found without comparing
// it with every other; and each text's search key is worked out once, on first use.
class ClipItems {
    struct Node;
    using Nodes = std::deque<std::unique_ptr<Node>>;

public:
    class const_iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = ClipItem;
        using difference_type = std::ptrdiff_t;
        using pointer = const ClipItem*;
        using reference = const ClipItem&;

        const_iterator() = default;
        reference operator*() const;
        pointer operator->() const { return &**this; }
        const_iterator& operator++() {
            ++at_;
            return *this;
        }
        const_iterator operator++(int) {
            const_iterator before = *this;
            ++at_;
            return before;
        }
        friend bool operator==(const const_iterator&, const const_iterator&) = default;

    private:
        friend class ClipItems;
        explicit const_iterator(Nodes::const_iterator at) : at_(at) {}
        Nodes::const_iterator at_;
    };

    ClipItems();
    ClipItems(std::initializer_list<ClipItem> items);
    ClipItems(const ClipItems& other);
    ClipItems& operator=(const ClipItems& other);
    ClipItems(ClipItems&& other) noexcept;
    ClipItems& operator=(ClipItems&& other) noexcept;
    ~ClipItems();

    std::size_t size() const { return nodes_.size(); }
    bool empty() const { return nodes_.empty(); }
    const ClipItem& operator[](std::size_t index) const;
    // Throws std::out_of_range past the end.
    const ClipItem& at(std::size_t index) const;
    const ClipItem& front() const { return (*this)[0]; }
    const ClipItem& back() const { return (*this)[size() - 1]; }
    const_iterator begin() const { return const_iterator(nodes_.begin()); }
    const_iterator end() const { return const_iterator(nodes_.end()); }

    void push_front(ClipItem item);
    void push_back(ClipItem item);
    void pop_front() { take(0); }
    void pop_back() { take(size() - 1); }
    // Removes the copy at `index` and hands it back.
    ClipItem take(std::size_t index);
    void clear();

    // The index of a copy with the same content (ClipItem::sameContent), if any.
    std::optional<std::size_t> findSame(const ClipItem& item) const;
    // Moves the copy at `index` to the front, as seen again at `date` in `app` (kept when
    // nothing).
    void bringToFront(std::size_t index, double date, std::optional<std::string> app);

    // What the search needs of the copy at `index`.
    const ClipSearchKey& searchKey(std::size_t index) const;
    // Works every search key out now, so that the first search does not wait for them.
    void prepareSearch() const;
    // Called at each step of a pass from front to back: starts loading the copies a few steps
    // ahead, so that a pass over thousands of copies scattered in memory does not wait for
    // each one in turn.
    void readAhead(std::size_t index) const;

    friend bool operator==(const ClipItems& a, const ClipItems& b);

private:
    Node& insertNode(ClipItem item, std::int64_t stamp);
    void unindex(const Node& node);
    std::size_t indexOf(const Node& node) const;

    Nodes nodes_;
    // Content hash to node; a hash shared by different contents is told apart by sameContent.
    std::unordered_multimap<std::uint64_t, const Node*> byContent_;
    // Nodes carry stamps that fall from front to back, so a node's place is a binary search.
    std::int64_t frontStamp_ = 0;
    std::int64_t backStamp_ = 0;
};

}  // namespace quorvane
