#include "tools/system/ScreenshotSettingsTool.hpp"

#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\n");
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

}  // namespace

ScreenshotSettingsTool::ScreenshotSettingsTool(const ToolDescriptor& descriptor,
                                               const Platform& platform)
    : PreferenceFlipTool(descriptor, platform, *PreferenceFlipTable::find(descriptor.identity.id)) {
    const Preferences& preferences = platform.preferences;
    if (const auto folder = preferences.string(kFolderKey); folder && folder->starts_with("/")) {
        folder_ = *folder;
    }
    if (const auto format = preferences.string(kFormatKey); format && isFormat(*format)) {
        format_ = *format;
    }
    shadow_ = preferences.boolean(kShadowKey).value_or(shadow_);
    thumbnail_ = preferences.boolean(kThumbnailKey).value_or(thumbnail_);
    dateInName_ = preferences.boolean(kDateInNameKey).value_or(dateInName_);
    name_ = preferences.string(kNameKey).value_or("");
}

bool ScreenshotSettingsTool::isFormat(const std::string& format) {
    return format == "png" || format == "jpg" || format == "heic";
}

bool ScreenshotSettingsTool::setFolder(const std::string& path) {
    const std::string folder = trimmed(path);
    if (!folder.empty() && !folder.starts_with("/")) {
        folderProblem_ = "The save folder must be a full path, such as /Users/you/Pictures.";
        publish();
        return false;
    }
    folderProblem_.clear();
    folder_ = folder;
    platform_.preferences.set(kFolderKey, folder_);
    settingsChanged();
    return true;
}

void ScreenshotSettingsTool::setFormat(const std::string& format) {
    if (!isFormat(format)) {
        return;
    }
    format_ = format;
    platform_.preferences.set(kFormatKey, format_);
    settingsChanged();
}

void ScreenshotSettingsTool::setShadow(bool on) {
    shadow_ = on;
    platform_.preferences.set(kShadowKey, on);
    settingsChanged();
}

void ScreenshotSettingsTool::setThumbnail(bool on) {
    thumbnail_ = on;
    platform_.preferences.set(kThumbnailKey, on);
    settingsChanged();
}

void ScreenshotSettingsTool::setDateInName(bool on) {
    dateInName_ = on;
    platform_.preferences.set(kDateInNameKey, on);
    settingsChanged();
}

void ScreenshotSettingsTool::setName(const std::string& name) {
    name_ = trimmed(name);
    platform_.preferences.set(kNameKey, name_);
    settingsChanged();
}

std::vector<PreferenceFlip> ScreenshotSettingsTool::wantedFlips() const {
    const auto domain = SystemPreferenceDomain::app(kDomain);
    const auto unlessEmpty = [](const std::string& text) {
        return text.empty() ? std::nullopt : std::optional<PreferenceValue>(text);
    };
    return {{"location", domain, unlessEmpty(folder_)},
            {"type", domain, format_},
            // The system's key says the opposite of what the user sees.
            {"disable-shadow", domain, !shadow_},
            {"show-thumbnail", domain, thumbnail_},
            {"include-date", domain, dateInName_},
            {"name", domain, unlessEmpty(name_)}};
}

void ScreenshotSettingsTool::addSettings(SettingsPage& page) {
    SettingsSection files{"Files", {}, ""};
    files.rows.push_back(
        {SettingsRow::TextField{"Save to folder", "Desktop", [this] { return folder_; },
                                [this](const std::string& path) { setFolder(path); }},
         {}});
    if (!folderProblem_.empty()) {
        files.rows.push_back({SettingsRow::Warning{folderProblem_}, {}});
    }
    files.rows.push_back(
        {SettingsRow::Choice{"Format",
                             {{"png", "PNG"}, {"jpg", "JPEG"}, {"heic", "HEIC"}},
                             [this] { return format_; },
                             [this](const std::string& value) { setFormat(value); }},
         {}});
    files.rows.push_back(
        {SettingsRow::TextField{"File name starts with", "Screenshot", [this] { return name_; },
                                [this](const std::string& text) { setName(text); }},
         {}});
    files.rows.push_back(
        {SettingsRow::Toggle{"Date and time in the file name", [this] { return dateInName_; },
                             [this](bool on) { setDateInName(on); }, ""},
         {}});
    SettingsSection look{"Look", {}, ""};
    look.rows.push_back(
        {SettingsRow::Toggle{"Shadow around window screenshots", [this] { return shadow_; },
                             [this](bool on) { setShadow(on); }, ""},
         {}});
    look.rows.push_back(
        {SettingsRow::Toggle{"Show a thumbnail after taking a screenshot",
                             [this] { return thumbnail_; }, [this](bool on) { setThumbnail(on); },
                             "The thumbnail lets you edit the screenshot, but the file is saved "
                             "only once it slides away."},
         {}});
    page.add(std::move(files)).add(std::move(look));
}

}  // namespace quorvane
