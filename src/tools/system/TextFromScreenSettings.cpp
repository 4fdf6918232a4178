#include "tools/system/TextFromScreenTool.hpp"

namespace quorvane {

SettingsPage TextFromScreenTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Press the shortcut, or the tile in the menu, then drag over any part of the "
             "screen: a picture, a video, a locked PDF. The text in it is copied, ready to "
             "paste. Esc cancels."},
         {}});
    main.rows.push_back(shortcut_.row("Copy text from an area"));
    main.rows.push_back({SettingsRow::Toggle{"Keep line breaks", [this] { return keepLineBreaks_; },
                                             [this](bool on) { setKeepsLineBreaks(on); },
                                             "Off: the text comes as one line, handy for "
                                             "sentences broken across a narrow column."},
                         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "Text is read on this Mac; nothing is sent anywhere and no picture is kept. "
             "Handwriting and very small or low-contrast print may not be read correctly, and "
             "tables come out as lines of text, not as columns."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
