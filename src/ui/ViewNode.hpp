#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/ColorRole.hpp"
#include "platform/Thumbnail.hpp"

namespace quorvane {

// A piece of window content as data: what it shows, in what order, and what its controls do.
// Portable code builds it, and tests read it; each platform draws it as it stands, so every
// choice of what to show is made here rather than in a renderer.
struct ViewNode {
    enum class Kind {
        column,          // children top to bottom, leading edges aligned, `size` apart
        row,             // children side by side, centred on each other (or top-aligned)
        label,           // one line; in `size`-point type and `width` wide when given
        heading,         // bold, `size` points
        wrappingLabel,   // wraps at `width`
        secondaryLabel,  // smaller and quieter, wraps at `width`
        styledLabel,     // **double asterisks** mark bold parts; wraps at `width`
        symbol,          // the system symbol `symbol` at `size` points
        fileIcon,        // the icon of the file at `text`, `size` points square
        picture,         // `image`, else the symbol `symbol` described as `text`, `size` square
        appBadge,        // the icon and name of the app whose bundle identifier is `text`
        button,          // runs `action`
        checkbox,        // `isOn`; tells `toggled`
        toggleSwitch,    // `isOn`; tells `toggled`
        tile,            // a `width` by `height` button that stays pressed while `isOn`
        card,            // its one child on a rounded, bordered panel `width` wide
        separator,       // a horizontal line `width` long
    };

    Kind kind = Kind::label;
    // A label's text, a control's title, or a file icon's path.
    std::string text;
    std::string symbol;
    std::string toolTip;
    // Points: a heading's type size, a symbol's or icon's size, or a stack's spacing.
    double size = 0;
    double width = 0;
    double height = 0;
    // Instead of the kind's own colour.
    std::optional<ColorRole> color;
    bool alignsTop = false;
    // A row's tint of the accent colour behind it, at this opacity.
    std::optional<double> highlight;
    bool monospacedDigits = false;
    // A label too long for its room ends in an ellipsis instead of pushing others aside.
    bool truncates = false;
    bool isOn = false;
    bool isEnabled = true;
    // Borderless buttons read as menu items.
    bool isBordered = true;
    // A button whose action takes the button itself away acts just after the click, once the
    // click no longer needs it.
    bool actsLater = false;
    // A key that presses a button: "\r" for Return; with ⌘ when `withCommand`.
    std::string keyEquivalent;
    bool withCommand = false;
    std::function<void()> action;
    std::function<void(bool on)> toggled;
    std::optional<Thumbnail> image;
    std::vector<ViewNode> children;

    static ViewNode column(double spacing, std::vector<ViewNode> children = {});
    static ViewNode row(double spacing, std::vector<ViewNode> children = {});
    static ViewNode label(std::string text);
    static ViewNode heading(std::string text, double size);
    static ViewNode wrappingLabel(std::string text, double width);
    static ViewNode secondaryLabel(std::string text, double width);
    static ViewNode styledLabel(std::string text, double width);
    static ViewNode symbolImage(std::string name, double size);
    static ViewNode fileIcon(std::string path, double size);
    static ViewNode picture(Thumbnail image, double size);
    static ViewNode symbolPicture(std::string name, std::string description, double size);
    static ViewNode appBadge(std::string bundleID);
    static ViewNode button(std::string title, std::function<void()> action);
    static ViewNode checkbox(std::string title, bool on, std::function<void(bool on)> toggled);
    static ViewNode toggleSwitch(bool on, bool enabled, std::function<void(bool on)> toggled);
    static ViewNode tile(std::string title, std::string symbol, bool on, double width,
                         double height, std::function<void()> action);
    static ViewNode card(double width, ViewNode content);
    static ViewNode separator(double width);

    ViewNode&& colored(ColorRole role) &&;
};

}  // namespace quorvane
