#pragma once

#include "platform/FileSystem.hpp"

namespace quorvane {

// The file system through POSIX and std::filesystem. The Trash is the freedesktop.org one
// ($XDG_DATA_HOME/Trash); property lists are read in their XML form. macOS reuses the listing
// and overrides the Trash and property lists with its own.
class PosixFileSystem : public FileSystem {
public:
    // An empty home means $HOME.
    explicit PosixFileSystem(std::string home = {});

    std::string homeDirectory() override { return home_; }
    std::optional<FileStatus> status(const std::string& path) override;
    std::optional<std::vector<DirectoryEntry>> contents(const std::string& path) override;
    std::string trashItem(const std::string& path) override;
    std::string moveItem(const std::string& from, const std::string& to) override;
    std::string createFile(const std::string& path, const std::string& bytes) override;
    std::string createDirectory(const std::string& path) override;
    std::optional<PreferenceValue> readPropertyList(const std::string& path,
                                                    std::string& error) override;

protected:
    // The file's bytes as a property list; here only the XML form.
    virtual std::optional<PreferenceValue> parsePropertyList(const std::string& bytes,
                                                             std::string& error);

private:
    std::string home_;
};

}  // namespace quorvane
