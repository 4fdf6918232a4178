#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "tools/windows/WindowSnapshot.hpp"

namespace quorvane {

class Preferences;

// Snapshots by name: by display set for the automatic restore, by the user's name for saved
// layouts. Stored as one JSON object under a preference key, {"name": snapshot, ...}.
class WindowSnapshots {
public:
    const std::map<std::string, WindowSnapshot>& all() const { return snapshots_; }
    const WindowSnapshot* find(const std::string& name) const;
    void put(const std::string& name, WindowSnapshot snapshot) {
        snapshots_[name] = std::move(snapshot);
    }
    bool remove(const std::string& name) { return snapshots_.erase(name) > 0; }
    bool empty() const { return snapshots_.empty(); }

    std::string encode() const;
    // Nothing when the text is not such an object or any snapshot in it is malformed.
    static std::optional<WindowSnapshots> decode(std::string_view text);

    // Reads the snapshots under `key`. Absent: empty. Unreadable: empty, with `unreadable` set,
    // so the caller can refuse to write over what it could not read.
    static WindowSnapshots load(const Preferences& preferences, const std::string& key,
                                bool& unreadable);
    void save(Preferences& preferences, const std::string& key) const;

private:
    std::map<std::string, WindowSnapshot> snapshots_;
};

}  // namespace quorvane
