#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tools/keyboard/ClipboardHistory.hpp"

namespace quorvane {

// The history on disk: "history.json" and one file per image in "Images", all in one folder.
// Copies may hold passwords and private text, so every folder is created owner-only (0700) and
// every file 0600, whatever the umask; files are replaced atomically, so a crash leaves either
// the old or the new history, never half of one.
class ClipboardStore {
public:
    static constexpr const char* kHistoryFile = "history.json";
    static constexpr const char* kImagesFolder = "Images";

    explicit ClipboardStore(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // "~/Library/Application Support/Quorvane/Clipboard" on the Mac; elsewhere
    // "$XDG_DATA_HOME/quorvane/Clipboard", else "~/.local/share/quorvane/Clipboard".
    static std::filesystem::path defaultFolder();

    const std::filesystem::path& folder() const { return folder_; }
    std::filesystem::path historyPath() const { return folder_ / kHistoryFile; }
    std::filesystem::path imagePath(const Uuid& id) const;

    struct Loaded {
        ClipboardHistory::Items items;
        // Where an unreadable history was moved, so the next save cannot overwrite it.
        std::optional<std::filesystem::path> setAside;
    };
    // A missing file is an empty history. A file that cannot be read as a history is moved
    // aside ("history.json.corrupt-<n>") and the history starts empty.
    Loaded load() const;
    // The items of a history file's text; nothing when it is not one.
    static std::optional<ClipboardHistory::Items> parse(std::string_view text);
    // The stored history as it is, changing nothing: empty when there is no file, nothing when
    // the file cannot be read as a history.
    std::optional<ClipboardHistory::Items> read() const;
    // False when anything failed; the old file then stays as it was.
    bool save(const ClipboardHistory::Items& items) const;

    bool writeImage(const Uuid& id, const std::vector<std::uint8_t>& bytes) const;
    std::optional<std::vector<std::uint8_t>> readImage(const Uuid& id) const;
    void deleteImage(const Uuid& id) const;
    // Deletes the history file and every image file not named by one of `keep`.
    void prune(const std::set<Uuid>& keep) const;
    // Deletes every image file not named by one of `keep`, leaving the history file.
    void removeOrphanImages(const std::set<Uuid>& keep) const;
    // Deletes the history file and all images.
    void clear() const { prune({}); }

    // Writes `bytes` to `path` through a 0600 temporary beside it and a rename.
    static bool writeAtomically(const std::filesystem::path& path, std::string_view bytes);
    // Creates the folder and its missing parents, each new one 0700.
    static bool makeFolder(const std::filesystem::path& path);

private:
    std::filesystem::path folder_;
};

}  // namespace quorvane
