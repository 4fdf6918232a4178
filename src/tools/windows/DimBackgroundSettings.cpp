#include "tools/windows/DimBackgroundTool.hpp"

#include <cmath>

namespace quorvane {

SettingsPage DimBackgroundTool::settingsPage() {
    SettingsSection main{"", {}, ""};
    main.rows.push_back(
        {SettingsRow::Note{
             "Everything behind the window you are working in is shaded, on every display. "
             "The shade follows you as you switch windows, and clicks go straight through it."},
         {}});
    main.rows.push_back(
        {SettingsRow::Slider{"Shade", kMinimumAmount, kMaximumAmount, 0.05,
                             [this] { return amount_; }, [this](double value) { setAmount(value); },
                             [](double value) {
                                 return std::to_string(static_cast<int>(std::lround(value * 100))) +
                                        "%";
                             }},
         {}});
    main.rows.push_back(
        {SettingsRow::Note{
             "The menu bar, the Dock and menus are never shaded. Other windows of the same app "
             "are shaded like any other window. With no window in front (the desktop), nothing "
             "is shaded."},
         {}});
    main.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(main));
    return page;
}

}  // namespace quorvane
