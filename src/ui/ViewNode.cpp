#include "ui/ViewNode.hpp"

#include <utility>

namespace quorvane {

namespace {

ViewNode node(ViewNode::Kind kind, std::string text = {}) {
    ViewNode made;
    made.kind = kind;
    made.text = std::move(text);
    return made;
}

ViewNode stack(ViewNode::Kind kind, double spacing, std::vector<ViewNode> children) {
    ViewNode made = node(kind);
    made.size = spacing;
    made.children = std::move(children);
    return made;
}

ViewNode sized(ViewNode::Kind kind, std::string text, double size) {
    ViewNode made = node(kind, std::move(text));
    made.size = size;
    return made;
}

ViewNode wrapping(ViewNode::Kind kind, std::string text, double width) {
    ViewNode made = node(kind, std::move(text));
    made.width = width;
    return made;
}

ViewNode toggle(ViewNode::Kind kind, std::string title, bool on,
                std::function<void(bool on)> toggled) {
    ViewNode made = node(kind, std::move(title));
    made.isOn = on;
    made.toggled = std::move(toggled);
    return made;
}

}  // namespace

ViewNode ViewNode::column(double spacing, std::vector<ViewNode> children) {
    return stack(Kind::column, spacing, std::move(children));
}

ViewNode ViewNode::row(double spacing, std::vector<ViewNode> children) {
    return stack(Kind::row, spacing, std::move(children));
}

ViewNode ViewNode::label(std::string text) {
    return node(Kind::label, std::move(text));
}

ViewNode ViewNode::heading(std::string text, double size) {
    return sized(Kind::heading, std::move(text), size);
}

ViewNode ViewNode::wrappingLabel(std::string text, double width) {
    return wrapping(Kind::wrappingLabel, std::move(text), width);
}

ViewNode ViewNode::secondaryLabel(std::string text, double width) {
    return wrapping(Kind::secondaryLabel, std::move(text), width);
}

ViewNode ViewNode::styledLabel(std::string text, double width) {
    return wrapping(Kind::styledLabel, std::move(text), width);
}

ViewNode ViewNode::symbolImage(std::string name, double size) {
    ViewNode made = sized(Kind::symbol, {}, size);
    made.symbol = std::move(name);
    return made;
}

ViewNode ViewNode::fileIcon(std::string path, double size) {
    return sized(Kind::fileIcon, std::move(path), size);
}

ViewNode ViewNode::picture(Thumbnail image, double size) {
    ViewNode made = sized(Kind::picture, {}, size);
    made.image = std::move(image);
    return made;
}

ViewNode ViewNode::symbolPicture(std::string name, std::string description, double size) {
    ViewNode made = sized(Kind::picture, std::move(description), size);
    made.symbol = std::move(name);
    return made;
}

ViewNode ViewNode::appBadge(std::string bundleID) {
    return node(Kind::appBadge, std::move(bundleID));
}

ViewNode ViewNode::button(std::string title, std::function<void()> action) {
    ViewNode made = node(Kind::button, std::move(title));
    made.action = std::move(action);
    return made;
}

ViewNode ViewNode::checkbox(std::string title, bool on, std::function<void(bool on)> toggled) {
    return toggle(Kind::checkbox, std::move(title), on, std::move(toggled));
}

ViewNode ViewNode::toggleSwitch(bool on, bool enabled, std::function<void(bool on)> toggled) {
    ViewNode made = toggle(Kind::toggleSwitch, {}, on, std::move(toggled));
    made.isEnabled = enabled;
    return made;
}

ViewNode ViewNode::tile(std::string title, std::string symbol, bool on, double width, double height,
                        std::function<void()> action) {
    ViewNode made = button(std::move(title), std::move(action));
    made.kind = Kind::tile;
    made.symbol = std::move(symbol);
    made.isOn = on;
    made.width = width;
    made.height = height;
    return made;
}

ViewNode ViewNode::card(double width, ViewNode content) {
    ViewNode made = node(Kind::card);
    made.children.push_back(std::move(content));
    made.width = width;
    return made;
}

ViewNode ViewNode::separator(double width) {
    ViewNode made = node(Kind::separator);
    made.width = width;
    return made;
}

ViewNode&& ViewNode::colored(ColorRole role) && {
    color = role;
    return std::move(*this);
}

}  // namespace quorvane
