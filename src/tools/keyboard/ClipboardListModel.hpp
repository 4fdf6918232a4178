#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Point.hpp"
#include "tools/keyboard/ClipboardHistory.hpp"

namespace quorvane {

// What the floating list shows and every decision behind it: the rows matching the search,
// the highlighted row, the texts, and what each key does. The panel only draws this.
class ClipboardListModel {
public:
    static constexpr const char* kFooter = "↩ Paste   ⌥↩ Plain text   ⌘⌫ Remove   ⎋ Close";
    static constexpr const char* kPlaceholder = "Search copies";
    static constexpr const char* kEmpty = "Nothing copied yet";
    static constexpr const char* kImageWords = "image picture photo screenshot";

    // One row as drawn.
    struct Row {
        Uuid id;
        ClipItem::Kind kind = ClipItem::Kind::text;
        // "1"…"9" for the first nine rows (the ⌘ digit), empty after.
        std::string number;
        // The text preview, or the file names joined with ", ".
        std::string title;
        // "photo" for images (until a thumbnail stands in), "doc.text" for files.
        std::string symbol;
        std::optional<std::string> app;
        bool isSelected = false;
    };

    // What a key in the panel asks for.
    struct KeyAction {
        enum class Kind { none, paste, remove, close, moveUp, moveDown, search };
        Kind kind = Kind::none;
        // For paste: the shown index.
        std::size_t index = 0;
        bool plainText = false;
    };

    void setItems(const ClipboardHistory::Items& items);
    void setQuery(std::string query);
    const std::string& query() const { return query_; }
    // Indices into the items, newest first, that match the query: texts that contain it,
    // case-insensitively; images when one of the words "image picture photo screenshot" does;
    // files when one of their names does.
    const std::vector<std::size_t>& shown() const { return shown_; }
    std::size_t selection() const { return selection_; }
    std::vector<Row> rows() const;
    // The row at a shown index, for a list that draws only the rows in view.
    Row row(std::size_t index) const;
    // Nothing when rows are shown.
    std::optional<std::string> emptyText() const;

    void moveSelection(int delta);
    // The mouse is over row `index`: it is selected only if the mouse really moved, so a list
    // that scrolls under a resting pointer keeps the keyboard's choice.
    void hover(std::size_t index, Point mouseLocation);
    // The item at a shown index.
    const ClipItem* itemAt(std::size_t index) const;

    // Return or keypad Enter pastes the selection (⌥ for plain text), ⌘⌫ removes it, Escape
    // closes, the arrows move, ⌘1…⌘9 paste a shown row; anything else is typing for the search.
    KeyAction key(std::uint16_t keyCode, std::uint64_t flags) const;

private:
    void filter();
    bool matches(std::size_t index, const ClipSearchKey::Query& query, bool imagesMatch) const;

    const ClipboardHistory::Items* items_ = nullptr;
    std::string query_;
    std::vector<std::size_t> shown_;
    std::size_t selection_ = 0;
    std::optional<Point> lastMouseLocation_;
};

}  // namespace quorvane
