#include "tools/system/ScreenRecorderTool.hpp"

namespace quorvane {

SettingsPage ScreenRecorderTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Press the shortcut, or the tile in the menu, to start recording; press it again "
             "to stop. The movie (MPEG-4) is saved in the folder below, named with the date "
             "and time, and never replaces a file that is already there."},
         {}});
    main.rows.push_back(shortcut_.row("Start or stop recording"));
    main.rows.push_back({SettingsRow::Choice{"Record",
                                             {{"display", "The display under the pointer"},
                                              {"window", "The front window"},
                                              {"area", "An area you drag out"}},
                                             [this] { return std::string(raw(source_)); },
                                             [this](const std::string& value) {
                                                 if (const auto source = parseSource(value)) {
                                                     setSource(*source);
                                                 }
                                             }},
                         {}});
    main.rows.push_back(
        {SettingsRow::Toggle{"Record the Mac's sound", [this] { return systemAudio_; },
                             [this](bool on) { setSystemAudio(on); }, ""},
         {}});
    main.rows.push_back(
        {SettingsRow::Toggle{"Record the microphone", [this] { return microphone_; },
                             [this](bool on) { setMicrophone(on); },
                             "macOS asks for microphone access the first time."},
         {}});
    main.rows.push_back({SettingsRow::Toggle{"Show the pointer", [this] { return showsCursor_; },
                                             [this](bool on) { setShowsCursor(on); }, ""},
                         {}});
    main.rows.push_back(
        {SettingsRow::TextField{"Save to", kDefaultFolder, [this] { return folderSetting_; },
                                [this](const std::string& folder) { setFolderSetting(folder); }},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "Recording needs macOS 15 or later. There is no editing, no webcam picture and "
             "no pause; a window is recorded only while it is on screen. Turning the tool off "
             "while recording stops and keeps the recording."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
