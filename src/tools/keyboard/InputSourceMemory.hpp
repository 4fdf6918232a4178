#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/InputSource.hpp"

namespace quorvane {

// Which keyboard input source each app gets: the one last used in it, learnt whenever the
// selected source changes while the app is in front. A remembered source the user has since
// removed from the input menu is never forced back; the app keeps the one in use.
class InputSourceMemory {
public:
    InputSourceMemory() = default;
    explicit InputSourceMemory(std::map<std::string, std::string> sources)
        : sources_(std::move(sources)) {}

    // The source to select when `bundleID` comes to the front, or nothing to keep the current
    // one. An app seen for the first time gets `newAppSource` when it names an available
    // source (empty: the current one).
    std::optional<std::string> sourceFor(const std::string& bundleID,
                                         const std::optional<std::string>& current,
                                         const std::vector<InputSource>& available,
                                         const std::string& newAppSource) const;
    // Whether the app's remembered source is gone from the input menu.
    bool remembersMissing(const std::string& bundleID,
                          const std::vector<InputSource>& available) const;
    // False when nothing changed.
    bool remember(const std::string& bundleID, const std::string& sourceID);
    bool forget(const std::string& bundleID);

    const std::map<std::string, std::string>& sources() const { return sources_; }

private:
    std::map<std::string, std::string> sources_;
};

}  // namespace quorvane
