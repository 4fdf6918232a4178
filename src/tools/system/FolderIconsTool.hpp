#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"

namespace quorvane {

// Colours folders and puts a badge on them. Only folders without an icon of their own are
// changed, because the system cannot hand back a custom icon once replaced; turning the tool
// off gives every folder it changed the system's icon again.
class FolderIconsTool : public Tool {
public:
    // An array of dictionaries with "path" and "style" (FolderIconStyle's text).
    static constexpr const char* kFoldersKey = "folderIcons.folders";
    // The folders that carry Quorvane's icon now; survives a crash, so tidy can undo them.
    static constexpr const char* kAppliedKey = "folderIcons.applied";

    struct Folder {
        std::string path;
        std::string style;
    };

    FolderIconsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    void tidy() override { removeAll(); }
    SettingsPage settingsPage() override;

    bool isRunning() const { return running_; }
    const std::vector<Folder>& folders() const { return folders_; }
    void addFolder(Folder folder);
    void setPath(std::size_t index, const std::string& path);
    void setStyle(std::size_t index, const std::string& style);
    void removeFolder(std::size_t index);
    // Why a folder has not got its icon; empty when it has.
    std::string warning(const std::string& path) const;
    const std::vector<std::string>& applied() const { return applied_; }
    const std::string& lastError() const { return lastError_; }

private:
    void apply(const Folder& folder);
    // Gives the folder the system's icon back if it carries Quorvane's.
    void removeIcon(const std::string& path);
    void removeAll();
    void saveFolders();
    void saveApplied();
    bool isApplied(const std::string& path) const;

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::vector<Folder> folders_;
    std::vector<std::string> applied_;
    std::map<std::string, std::string> warnings_;
    bool running_ = false;
    std::string lastError_;
};

}  // namespace quorvane
