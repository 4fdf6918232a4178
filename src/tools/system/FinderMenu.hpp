#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tools/system/FinderRequest.hpp"

namespace quorvane {

// The Finder extension's contextual menu: its entries, and the request each one sends for what
// the user right-clicked. The extension only reads Finder's answers and sends the request.
struct FinderMenu {
    enum class Entry { newTextFile, newMarkdownFile, newEmptyFile, copyPath };
    static constexpr Entry kEntries[] = {Entry::newTextFile, Entry::newMarkdownFile,
                                         Entry::newEmptyFile, Entry::copyPath};

    // What Finder says was right-clicked: the targeted item (the window's own folder when its
    // background was clicked), whether that is a folder, and the selected items. Paths are
    // absolute; an empty target means Finder named none.
    struct Click {
        std::string target;
        bool targetIsFolder = false;
        std::vector<std::string> selected;
    };

    static std::string title(Entry entry);
    // A menu item's tag names its entry: the place in kEntries counted from 1, because 0 is
    // every item's tag until one is set, and a sender that lost ours must choose nothing.
    static long tagAt(std::size_t index) { return static_cast<long>(index) + 1; }
    static std::optional<Entry> entryForTag(long tag);
    // Nothing when the click names no place to act on.
    static std::optional<FinderRequest> request(Entry entry, const Click& click);
};

}  // namespace quorvane
