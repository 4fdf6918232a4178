#include "tools/keyboard/ClipboardListModel.hpp"

#include <algorithm>
#include <array>

#include "tools/keyboard/ClipText.hpp"

namespace quorvane {

namespace {

constexpr std::uint64_t kShift = 0x20000;
constexpr std::uint64_t kControl = 0x40000;
constexpr std::uint64_t kOption = 0x80000;
constexpr std::uint64_t kCommand = 0x100000;
constexpr std::uint64_t kModifiers = kShift | kControl | kOption | kCommand;

// US-layout key codes of the digits 1…9.
constexpr std::array<std::uint16_t, 9> kDigitKeys = {18, 19, 20, 21, 23, 22, 26, 28, 25};

std::string_view fileName(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

}  // namespace

void ClipboardListModel::setItems(const ClipboardHistory::Items& items) {
    items_ = &items;
    filter();
}

void ClipboardListModel::setQuery(std::string query) {
    query_ = std::move(query);
    selection_ = 0;
    filter();
}

bool ClipboardListModel::matches(std::size_t index, const ClipSearchKey::Query& query,
                                 bool imagesMatch) const {
    const ClipItem& item = (*items_)[index];
    switch (item.kind) {
        case ClipItem::Kind::text:
            return item.text && items_->searchKey(index).mayContain(query) &&
                   query.finder().foundIn(*item.text);
        case ClipItem::Kind::image:
            return imagesMatch;
        case ClipItem::Kind::files:
            if (item.filePaths) {
                for (const auto& path : *item.filePaths) {
                    if (query.finder().foundIn(fileName(path))) {
                        return true;
                    }
                }
            }
            return false;
    }
    return false;
}

void ClipboardListModel::filter() {
    shown_.clear();
    if (items_ == nullptr) {
        selection_ = 0;
        return;
    }
    const std::string_view trimmed = ClipText::trimmed(query_);
    if (trimmed.empty()) {
        for (std::size_t i = 0; i < items_->size(); ++i) {
            shown_.push_back(i);
        }
    } else {
        const ClipSearchKey::Query query(ClipText::fold(trimmed));
        const bool imagesMatch = query.finder().foundIn(kImageWords);
        for (std::size_t i = 0; i < items_->size(); ++i) {
            items_->readAhead(i);
            if (matches(i, query, imagesMatch)) {
                shown_.push_back(i);
            }
        }
    }
    if (selection_ >= shown_.size()) {
        selection_ = shown_.empty() ? 0 : shown_.size() - 1;
    }
}

std::vector<ClipboardListModel::Row> ClipboardListModel::rows() const {
    std::vector<Row> rows;
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        rows.push_back(row(i));
    }
    return rows;
}

ClipboardListModel::Row ClipboardListModel::row(std::size_t index) const {
    const ClipItem& item = (*items_)[shown_.at(index)];
    Row row;
    row.id = item.id;
    row.kind = item.kind;
    row.number = index < 9 ? std::to_string(index + 1) : std::string();
    row.app = item.app;
    row.isSelected = index == selection_;
    switch (item.kind) {
        case ClipItem::Kind::text:
            row.title = item.text ? ClipText::preview(*item.text) : std::string();
            break;
        case ClipItem::Kind::image:
            row.symbol = "photo";
            break;
        case ClipItem::Kind::files:
            row.symbol = "doc.text";
            if (item.filePaths) {
                for (const auto& path : *item.filePaths) {
                    row.title += row.title.empty() ? "" : ", ";
                    row.title += fileName(path);
                }
            }
            break;
    }
    return row;
}

std::optional<std::string> ClipboardListModel::emptyText() const {
    if (!shown_.empty()) {
        return std::nullopt;
    }
    const std::string_view trimmed = ClipText::trimmed(query_);
    if (trimmed.empty()) {
        return kEmpty;
    }
    return "No copies match “" + std::string(trimmed) + "”";
}

void ClipboardListModel::moveSelection(int delta) {
    if (shown_.empty()) {
        selection_ = 0;
        return;
    }
    const auto last = static_cast<long>(shown_.size()) - 1;
    selection_ =
        static_cast<std::size_t>(std::clamp(static_cast<long>(selection_) + delta, 0L, last));
}

void ClipboardListModel::hover(std::size_t index, Point mouseLocation) {
    const bool moved = !lastMouseLocation_ || !(*lastMouseLocation_ == mouseLocation);
    lastMouseLocation_ = mouseLocation;
    if (moved && index < shown_.size()) {
        selection_ = index;
    }
}

const ClipItem* ClipboardListModel::itemAt(std::size_t index) const {
    return index < shown_.size() ? &(*items_)[shown_[index]] : nullptr;
}

ClipboardListModel::KeyAction ClipboardListModel::key(std::uint16_t keyCode,
                                                      std::uint64_t flags) const {
    using Kind = KeyAction::Kind;
    const std::uint64_t held = flags & kModifiers;
    switch (keyCode) {
        case 36:
        case 76:
            return {Kind::paste, selection_, (held & kOption) != 0};
        case 51:
            if (held == kCommand) {
                return {Kind::remove, selection_, false};
            }
            break;
        case 53:
            return {Kind::close, 0, false};
        case 125:
            return {Kind::moveDown, 0, false};
        case 126:
            return {Kind::moveUp, 0, false};
        default:
            break;
    }
    if (held == kCommand) {
        const auto digit = std::find(kDigitKeys.begin(), kDigitKeys.end(), keyCode);
        if (digit != kDigitKeys.end()) {
            return {Kind::paste, static_cast<std::size_t>(digit - kDigitKeys.begin()), false};
        }
    }
    return {Kind::search, 0, false};
}

}  // namespace quorvane
