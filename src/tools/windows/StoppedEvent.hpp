#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Json.hpp"
#include "base/Uuid.hpp"

namespace quorvane {

// One activation that stop-focus-stealing put back, as the history shows it.
struct StoppedEvent {
    Uuid id;
    std::string appName;
    std::string bundleID;
    std::optional<std::string> bundleURL;
    double date = 0;            // seconds since 2001-01-01 UTC
    bool isBackground = false;  // no Dock icon: a helper, agent or updater

    friend bool operator==(const StoppedEvent&, const StoppedEvent&) = default;

    Json toJson() const;
    static std::optional<StoppedEvent> fromJson(const Json& json);
};

// Newest first, one entry per app, at most kLimit entries.
class StoppedHistory {
public:
    static constexpr std::size_t kLimit = 30;

    const std::vector<StoppedEvent>& events() const { return events_; }
    void record(StoppedEvent event);
    void remove(const Uuid& id);

    std::string encode() const;
    // Nothing when the text is not a history; the caller then starts empty and keeps the
    // stored value untouched until the next change.
    static std::optional<StoppedHistory> decode(std::string_view text);

private:
    std::vector<StoppedEvent> events_;
};

}  // namespace quorvane
