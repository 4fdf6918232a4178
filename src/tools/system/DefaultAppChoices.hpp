#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/SettingsRow.hpp"

namespace quorvane {

// The decisions of the default-apps page, apart from the system: how apps are listed, and which
// handlers to give back when the tool is turned off.
struct DefaultAppChoices {
    // "/Applications/Firefox.app" → "Firefox".
    static std::string appName(const std::string& path);
    // Every app that can open the kind, once, by name; the current one even when the system
    // did not list it. Two apps of the same name are told apart by their folder.
    static std::vector<SettingsRow::ChoiceOption> options(
        const std::optional<std::string>& current, const std::vector<std::string>& candidates);
};

// The handler each kind had before Quorvane's first change, by handler name; an empty path means
// there was none, which the system cannot set back. Taken once: later changes keep the first.
class DefaultAppBackup {
public:
    DefaultAppBackup() = default;
    explicit DefaultAppBackup(std::map<std::string, std::string> originals)
        : originals_(std::move(originals)) {}

    // False when the handler already has its record.
    bool recordBefore(const std::string& handler, const std::optional<std::string>& current);
    void drop(const std::string& handler) { originals_.erase(handler); }
    // What to set back, given what is in force now; handlers already back, or without an
    // original, need nothing and are left out.
    std::vector<std::pair<std::string, std::string>> restorations(
        const std::map<std::string, std::optional<std::string>>& current) const;

    const std::map<std::string, std::string>& originals() const { return originals_; }

private:
    std::map<std::string, std::string> originals_;
};

}  // namespace quorvane
