#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/Thumbnail.hpp"
#include "ui/ViewNode.hpp"

namespace quorvane {

// One row of a floating list, as drawn.
struct ListPanelRow {
    // "1"…"9" beside the first nine rows, empty after.
    std::string number;
    std::string title;
    // An SF Symbols name, shown when there is no thumbnail.
    std::string symbol;
    std::optional<Thumbnail> thumbnail;
    // Bundle identifier of the app the row came from; the panel shows its icon and name.
    std::optional<std::string> app;
    bool isSelected = false;

    // The selection's highlight behind the row: a tint of the accent colour, none when the row
    // is not selected.
    static constexpr double kSelectedOpacity = 0.25;
    double highlightOpacity() const { return isSelected ? kSelectedOpacity : 0; }

    // The row as drawn: its number, its thumbnail or else its symbol, its title, which gives
    // way when room runs out, and the app it came from.
    ViewNode view() const;
};

// Everything a floating list shows besides its rows, which it asks for one at a time as they
// scroll into view. The panel's content is 400 points wide and 460 high: a search field on
// top, the rows, and a footer line.
struct ListPanelContent {
    static constexpr double kWidth = 400;
    static constexpr double kHeight = 460;
    static constexpr double kRowHeight = 36;
    static constexpr double kThumbnailSize = 28;
    static constexpr double kPadding = 8;
    static constexpr double kCornerRadius = 12;

    std::string query;
    std::string placeholder;
    std::size_t rowCount = 0;
    std::size_t selection = 0;
    // Instead of the rows when there are none.
    std::optional<std::string> emptyText;
    std::string footer;
    // The tool's last error, shown above the footer; empty for none.
    std::string error;

    // The row to scroll into view: the selection, while there is a row to select.
    std::optional<std::size_t> rowToReveal() const {
        return selection < rowCount ? std::optional(selection) : std::nullopt;
    }
};

}  // namespace quorvane
