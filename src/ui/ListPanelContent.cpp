#include "ui/ListPanelContent.hpp"

#include <utility>

namespace quorvane {

namespace {

// The numbers "1" to "9" in small figures of one width, in a column of their own.
constexpr double kNumberSize = 11;
constexpr double kNumberWidth = 12;

}  // namespace

ViewNode ListPanelRow::view() const {
    ViewNode index = ViewNode::label(number).colored(ColorRole::tertiaryLabel);
    index.size = kNumberSize;
    index.monospacedDigits = true;
    index.width = kNumberWidth;
    ViewNode row = ViewNode::row(8, {std::move(index)});
    row.highlight = highlightOpacity();
    if (thumbnail && thumbnail->image) {
        row.children.push_back(ViewNode::picture(*thumbnail, ListPanelContent::kThumbnailSize));
    } else if (!symbol.empty()) {
        row.children.push_back(
            ViewNode::symbolPicture(symbol, title, ListPanelContent::kThumbnailSize));
    }
    ViewNode name = ViewNode::label(title);
    name.truncates = true;
    row.children.push_back(std::move(name));
    if (app) {
        row.children.push_back(ViewNode::appBadge(*app));
    }
    return row;
}

}  // namespace quorvane
