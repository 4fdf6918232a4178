#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvane {

// What the Finder extension asks of the app, as the one string it may send (JSON):
// {"action":"new-file","folder":"/Users/me/Desktop","kind":"txt"} or
// {"action":"copy-path","items":["/Users/me/a.txt"]}.
struct FinderRequest {
    enum class Action { newFile, copyPath };
    Action action = Action::newFile;
    std::string folder;
    // The file name extension of the new file ("txt", "md"); empty for none.
    std::string kind;
    std::vector<std::string> items;

    // Nothing for a message that is not a well-formed request with absolute paths.
    static std::optional<FinderRequest> decode(const std::string& message);
    std::string encode() const;
};

}  // namespace quorvane
