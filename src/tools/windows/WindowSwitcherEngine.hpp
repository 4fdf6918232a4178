#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quorvane {

// The switcher's state while the shortcut's modifiers are held: the windows in front-to-back
// order and the one picked. It opens on the window behind the front one, so a quick press and
// release goes back and forth between two windows, like ⌘Tab does with apps.
class WindowSwitcherEngine {
public:
    struct Entry {
        std::string appName;
        std::string title;
    };

    bool isOpen() const { return open_; }
    // Nothing opens without a window to switch to.
    bool open(std::vector<Entry> entries);
    // Moves the pick forward (+1) or back (-1), going round.
    void step(int by);
    // Closes, answering the picked window's index.
    std::optional<std::size_t> commit();
    void cancel();

    std::size_t selected() const { return selected_; }
    const std::vector<Entry>& entries() const { return entries_; }
    // The notice's text: the picked window, then where it is in the list and what to do.
    std::string caption() const;

private:
    std::vector<Entry> entries_;
    std::size_t selected_ = 0;
    bool open_ = false;
};

}  // namespace quorvane
