#include "tools/system/ColorPickerTool.hpp"

namespace quorvane {

SettingsPage ColorPickerTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Press the shortcut, or the tile in the menu, and the system's magnifier appears. "
             "Click any pixel on any screen and its colour is copied, ready to paste; Esc "
             "cancels."},
         {}});
    main.rows.push_back(shortcut_.row("Pick a color"));
    main.rows.push_back(
        {SettingsRow::Choice{"Copy as",
                             {{"hex", "Hex (#1E90FF)"},
                              {"rgb", "RGB (rgb(30, 144, 255))"},
                              {"hsl", "HSL (hsl(210, 100%, 56%))"}},
                             [this] { return std::string(ColorFormat::raw(format_)); },
                             [this](const std::string& raw) {
                                 if (const auto kind = ColorFormat::parse(raw)) {
                                     setFormat(*kind);
                                 }
                             }},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{"Colours are copied in sRGB, 8 bits a channel; transparency is not "
                           "kept. No screen-recording permission is needed: only the one "
                           "colour you click reaches Quorvane."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
