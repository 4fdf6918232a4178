#include "tools/windows/WindowDragTool.hpp"

namespace quorvane {

SettingsPage WindowDragTool::settingsPage() {
    using Keys = WindowDragEngine::Keys;
    SettingsRow::Choice modifiers{
        "Hold",
        {{std::string(WindowDragEngine::rawValue(Keys::controlCommand)), "⌃⌘ Control-Command"},
         {std::string(WindowDragEngine::rawValue(Keys::optionCommand)), "⌥⌘ Option-Command"},
         {std::string(WindowDragEngine::rawValue(Keys::controlOption)), "⌃⌥ Control-Option"}},
        [this] { return std::string(WindowDragEngine::rawValue(keys())); },
        [this](const std::string& raw) {
            if (const auto chosen = WindowDragEngine::keysFromRawValue(raw)) {
                setKeys(*chosen);
            }
        }};
    SettingsRow::Toggle front{"Bring the window to the front", [this] { return bringsToFront(); },
                              [this](bool on) { setBringsToFront(on); }, ""};
    SettingsRow::Note explanation{
        "When resizing, grab near the edge or corner you want to move. Grabbing the middle "
        "resizes from the bottom-right corner. ⌥⌘-drag makes aliases in Finder, which is why ⌃⌘ "
        "is the default."};
    SettingsPage page;
    page.add({"",
              {{std::move(modifiers), {}},
               {std::move(front), {}},
               {std::move(explanation), {}},
               SettingsRow::errorWarning(lastError_)},
              ""});
    return page;
}

}  // namespace quorvane
