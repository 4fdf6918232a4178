#pragma once

#include <string>

#include "tools/system/PreferenceFlipTool.hpp"

namespace quorvane {

// Where screenshots go and what they look like, written into the screen-capture preferences
// while the tool is on. Each setting is one key there; an empty folder or name leaves the
// user's own choice in place.
class ScreenshotSettingsTool : public PreferenceFlipTool {
public:
    static constexpr const char* kFolderKey = "screenshots.folder";
    static constexpr const char* kFormatKey = "screenshots.format";
    static constexpr const char* kShadowKey = "screenshots.shadow";
    static constexpr const char* kThumbnailKey = "screenshots.thumbnail";
    static constexpr const char* kDateInNameKey = "screenshots.dateInName";
    static constexpr const char* kNameKey = "screenshots.name";
    static constexpr const char* kDomain = "com.apple.screencapture";

    ScreenshotSettingsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const std::string& folder() const { return folder_; }
    // A full path, or empty for the system's choice (the desktop). Anything else is refused
    // with a note on the page, and the folder stays as it was.
    bool setFolder(const std::string& path);
    const std::string& format() const { return format_; }
    // "png", "jpg" or "heic"; anything else is ignored.
    void setFormat(const std::string& format);
    bool shadow() const { return shadow_; }
    void setShadow(bool on);
    bool thumbnail() const { return thumbnail_; }
    void setThumbnail(bool on);
    bool dateInName() const { return dateInName_; }
    void setDateInName(bool on);
    const std::string& name() const { return name_; }
    void setName(const std::string& name);

protected:
    std::vector<PreferenceFlip> wantedFlips() const override;
    void addSettings(SettingsPage& page) override;

private:
    static bool isFormat(const std::string& format);

    std::string folder_;
    std::string format_ = "png";
    bool shadow_ = true;
    bool thumbnail_ = true;
    bool dateInName_ = true;
    std::string name_;
    std::string folderProblem_;
};

}  // namespace quorvane
