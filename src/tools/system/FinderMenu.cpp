#include "tools/system/FinderMenu.hpp"

#include <filesystem>
#include <iterator>

namespace quorvane {

namespace {

// The file name extension of a new file; empty for none.
std::string kindOf(FinderMenu::Entry entry) {
    switch (entry) {
        case FinderMenu::Entry::newTextFile:
            return "txt";
        case FinderMenu::Entry::newMarkdownFile:
            return "md";
        case FinderMenu::Entry::newEmptyFile:
        case FinderMenu::Entry::copyPath:
            break;
    }
    return {};
}

}  // namespace

std::optional<FinderMenu::Entry> FinderMenu::entryForTag(long tag) {
    if (tag < 1 || tag > static_cast<long>(std::size(kEntries))) {
        return std::nullopt;
    }
    return kEntries[static_cast<std::size_t>(tag - 1)];
}

std::string FinderMenu::title(Entry entry) {
    switch (entry) {
        case Entry::newTextFile:
            return "New Text File";
        case Entry::newMarkdownFile:
            return "New Markdown File";
        case Entry::newEmptyFile:
            return "New Empty File";
        case Entry::copyPath:
            return "Copy Path";
    }
    return {};
}

std::optional<FinderRequest> FinderMenu::request(Entry entry, const Click& click) {
    FinderRequest request;
    if (entry == Entry::copyPath) {
        request.action = FinderRequest::Action::copyPath;
        request.items = click.selected;
        // Nothing selected: the window's background was clicked, and its folder is meant.
        if (request.items.empty() && !click.target.empty()) {
            request.items.push_back(click.target);
        }
        return request.items.empty() ? std::nullopt : std::optional(request);
    }
    if (click.target.empty()) {
        return std::nullopt;
    }
    // A new file goes into a clicked folder itself, or beside a clicked file.
    request.action = FinderRequest::Action::newFile;
    request.folder = click.targetIsFolder
                         ? click.target
                         : std::filesystem::path(click.target).parent_path().string();
    request.kind = kindOf(entry);
    return request;
}

}  // namespace quorvane
