#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "base/Point.hpp"
#include "base/Rect.hpp"
#include "ui/ListPanelContent.hpp"

namespace quorvane {

// A floating list with a search field that takes typing without activating Quorvane, so the
// app the user is in stays the active one: a borderless non-activating panel that can still
// become the key window. It only draws what it is given and reports what the user does.
class ListPanel {
public:
    struct Handlers {
        // The row at `index`, asked for when it comes into view.
        std::function<ListPanelRow(std::size_t index)> row;
        // The search field's text changed by typing.
        std::function<void(const std::string& query)> queryChanged;
        // A row was clicked.
        std::function<void(std::size_t index)> rowClicked;
        // The mouse is over a row; `location` in screen coordinates.
        std::function<void(std::size_t index, Point location)> rowHovered;
        // The panel stopped being the key window (the user went elsewhere).
        std::function<void()> resignedKey;
    };

    virtual ~ListPanel() = default;

    // Replaces what is shown and asks for the visible rows again; the selected row is
    // scrolled into view.
    virtual void setContent(const ListPanelContent& content) = 0;
    // Places the panel (screen coordinates), brings it to the front and makes it key, with
    // the search field taking the typing.
    virtual void show(const Rect& frame) = 0;
    virtual void close() = 0;
    virtual bool isVisible() const = 0;
};

}  // namespace quorvane
