#include "tools/input/ScrollDirectionTool.hpp"

namespace quorvane {

SettingsPage ScrollDirectionTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Toggle{"Reverse the mouse wheel", [this] { return reversal_.reverseMouse; },
                             [this](bool on) { setReverseMouse(on); },
                             "The wheel scrolls the other way from the system's setting."},
         {}});
    section.rows.push_back(
        {SettingsRow::Toggle{"Reverse the trackpad", [this] { return reversal_.reverseTrackpad; },
                             [this](bool on) { setReverseTrackpad(on); },
                             "Two-finger scrolling goes the other way from the system's setting."},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"macOS has one Natural scrolling switch for the mouse and the trackpad. "
                           "Set it the way you want the trackpad, then reverse the mouse here (or "
                           "the other way round). The Magic Mouse scrolls like a trackpad and "
                           "counts as one."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
