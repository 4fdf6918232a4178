#include "tools/keyboard/ClipItems.hpp"

#include <algorithm>
#include <functional>
#include <string_view>

namespace quorvane {

struct ClipItems::Node {
    ClipItem item;
    std::int64_t stamp = 0;
    // Nothing for a copy that is never the same as another (an image without a hash).
    std::optional<std::uint64_t> content;
    mutable std::optional<ClipSearchKey> searchKey;
};

namespace {

std::uint64_t mix(std::uint64_t seed, std::uint64_t value) {
    return (seed ^ value) * 0x9E3779B97F4A7C15ULL + (seed >> 29);
}

std::uint64_t hashOf(std::string_view text) {
    return std::hash<std::string_view>{}(text);
}

// Long texts are hashed from their length and three samples: equal texts hash alike, and
// telling apart the rare different texts that collide costs one comparison.
std::uint64_t hashText(std::string_view text) {
    constexpr std::size_t kSample = 64;
    std::uint64_t hash = mix(1, text.size());
    if (text.size() <= 3 * kSample) {
        return mix(hash, hashOf(text));
    }
    hash = mix(hash, hashOf(text.substr(0, kSample)));
    hash = mix(hash, hashOf(text.substr(text.size() / 2, kSample)));
    return mix(hash, hashOf(text.substr(text.size() - kSample)));
}

std::optional<std::uint64_t> contentHash(const ClipItem& item) {
    const auto kind = static_cast<std::uint64_t>(item.kind) + 1;
    switch (item.kind) {
        case ClipItem::Kind::text:
            return item.text ? mix(kind, hashText(*item.text)) : kind;
        case ClipItem::Kind::image:
            if (!item.imageHash) {
                return std::nullopt;
            }
            return mix(kind, hashOf(*item.imageHash));
        case ClipItem::Kind::files: {
            if (!item.filePaths) {
                return kind;
            }
            std::uint64_t hash = mix(kind, item.filePaths->size() + 1);
            for (const auto& path : *item.filePaths) {
                hash = mix(hash, hashOf(path));
            }
            return hash;
        }
    }
    return std::nullopt;
}

}  // namespace

const ClipItem& ClipItems::const_iterator::operator*() const {
    return (*at_)->item;
}

ClipItems::ClipItems() = default;
ClipItems::~ClipItems() = default;
ClipItems::ClipItems(ClipItems&& other) noexcept = default;
ClipItems& ClipItems::operator=(ClipItems&& other) noexcept = default;

ClipItems::ClipItems(std::initializer_list<ClipItem> items) {
    for (const ClipItem& item : items) {
        push_back(item);
    }
}

ClipItems::ClipItems(const ClipItems& other) {
    for (const ClipItem& item : other) {
        push_back(item);
    }
}

ClipItems& ClipItems::operator=(const ClipItems& other) {
    if (this != &other) {
        ClipItems copy(other);
        *this = std::move(copy);
    }
    return *this;
}

const ClipItem& ClipItems::operator[](std::size_t index) const {
    return nodes_[index]->item;
}

const ClipItem& ClipItems::at(std::size_t index) const {
    return nodes_.at(index)->item;
}

ClipItems::Node& ClipItems::insertNode(ClipItem item, std::int64_t stamp) {
    auto node = std::make_unique<Node>();
    node->content = contentHash(item);
    node->item = std::move(item);
    node->stamp = stamp;
    Node& added = *node;
    if (added.content) {
        byContent_.emplace(*added.content, &added);
    }
    if (nodes_.empty() || stamp > frontStamp_) {
        nodes_.push_front(std::move(node));
    } else {
        nodes_.push_back(std::move(node));
    }
    return added;
}

void ClipItems::push_front(ClipItem item) {
    const std::int64_t stamp = nodes_.empty() ? 0 : frontStamp_ + 1;
    insertNode(std::move(item), stamp);
    frontStamp_ = stamp;
    backStamp_ = nodes_.size() == 1 ? stamp : backStamp_;
}

void ClipItems::push_back(ClipItem item) {
    const std::int64_t stamp = nodes_.empty() ? 0 : backStamp_ - 1;
    insertNode(std::move(item), stamp);
    backStamp_ = stamp;
    frontStamp_ = nodes_.size() == 1 ? stamp : frontStamp_;
}

void ClipItems::unindex(const Node& node) {
    if (!node.content) {
        return;
    }
    const auto [first, last] = byContent_.equal_range(*node.content);
    for (auto it = first; it != last; ++it) {
        if (it->second == &node) {
            byContent_.erase(it);
            return;
        }
    }
}

std::size_t ClipItems::indexOf(const Node& node) const {
    const auto found = std::lower_bound(
        nodes_.begin(), nodes_.end(), node.stamp,
        [](const std::unique_ptr<Node>& n, std::int64_t stamp) { return n->stamp > stamp; });
    return static_cast<std::size_t>(found - nodes_.begin());
}

ClipItem ClipItems::take(std::size_t index) {
    std::unique_ptr<Node> node = std::move(nodes_[index]);
    nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(index));
    unindex(*node);
    if (!nodes_.empty()) {
        frontStamp_ = nodes_.front()->stamp;
        backStamp_ = nodes_.back()->stamp;
    }
    return std::move(node->item);
}

void ClipItems::clear() {
    nodes_.clear();
    byContent_.clear();
}

std::optional<std::size_t> ClipItems::findSame(const ClipItem& item) const {
    const auto content = contentHash(item);
    if (!content) {
        return std::nullopt;
    }
    const Node* best = nullptr;
    const auto [first, last] = byContent_.equal_range(*content);
    for (auto it = first; it != last; ++it) {
        // Several equal copies can only come from a file; the newest one is the one to reuse.
        if (it->second->item.sameContent(item) &&
            (best == nullptr || it->second->stamp > best->stamp)) {
            best = it->second;
        }
    }
    if (best == nullptr) {
        return std::nullopt;
    }
    return indexOf(*best);
}

void ClipItems::bringToFront(std::size_t index, double date, std::optional<std::string> app) {
    std::unique_ptr<Node> node = std::move(nodes_[index]);
    nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(index));
    node->item.date = date;
    if (app) {
        node->item.app = std::move(app);
    }
    node->stamp = nodes_.empty() ? 0 : frontStamp_ + 1;
    nodes_.push_front(std::move(node));
    frontStamp_ = nodes_.front()->stamp;
    backStamp_ = nodes_.back()->stamp;
}

const ClipSearchKey& ClipItems::searchKey(std::size_t index) const {
    const Node& node = *nodes_[index];
    if (!node.searchKey) {
        node.searchKey.emplace(node.item.kind == ClipItem::Kind::text && node.item.text
                                   ? ClipSearchKey(*node.item.text)
                                   : ClipSearchKey());
    }
    return *node.searchKey;
}

void ClipItems::prepareSearch() const {
    for (std::size_t i = 0; i < size(); ++i) {
        searchKey(i);
    }
}

void ClipItems::readAhead(std::size_t index) const {
    // Two stages: the node far ahead, then, once it has arrived, what it points to.
    constexpr std::size_t kNodeDistance = 16;
    constexpr std::size_t kDataDistance = 8;
    if (index + kNodeDistance < nodes_.size()) {
        __builtin_prefetch(nodes_[index + kNodeDistance].get());
    }
    if (index + kDataDistance < nodes_.size()) {
        const Node& node = *nodes_[index + kDataDistance];
        if (node.item.text) {
            __builtin_prefetch(node.item.text->data());
        }
        if (node.searchKey) {
            __builtin_prefetch(node.searchKey->data());
        }
    }
}

bool operator==(const ClipItems& a, const ClipItems& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

}  // namespace quorvane
