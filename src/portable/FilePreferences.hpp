#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "portable/MemoryPreferences.hpp"

namespace quorvane {

// The application's preferences as one JSON file, for systems without user defaults. Every
// change rewrites the file atomically (a temporary file beside it, flushed, then renamed), so a
// crash leaves either the old or the new file, never half of one. A file that cannot be read
// or parsed is refused and left exactly as it is: the user's settings are never replaced by
// defaults behind their back.
class FilePreferences : public Preferences {
public:
    // The default location: $XDG_CONFIG_HOME/quorvane/preferences.json, or
    // ~/.config/quorvane/preferences.json when XDG_CONFIG_HOME is unset or not absolute.
    static std::filesystem::path defaultPath();

    // A missing file is an empty store (the file appears with the first change). Nothing with
    // `error` set when the file exists but cannot be read or is not a preferences file.
    static std::unique_ptr<FilePreferences> open(const std::filesystem::path& path,
                                                 std::string& error);

    std::optional<PreferenceValue> object(std::string_view key) const override;
    void set(std::string_view key, PreferenceValue value) override;
    void remove(std::string_view key) override;

    const std::filesystem::path& path() const { return path_; }
    const MemoryPreferences::Values& values() const { return values_.values(); }
    std::string lastError() const override { return lastError_; }

private:
    FilePreferences(std::filesystem::path path, MemoryPreferences values);
    void save();

    std::filesystem::path path_;
    MemoryPreferences values_;
    std::string lastError_;
};

}  // namespace quorvane
